// What holds for the names and values of profile files whoever reads and writes them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

/// The number at the start of a value, as GetPrivateProfileInt reads it: blanks, a sign, decimal digits, or
/// "0x", "0o" or "0b" and digits of that base. 0 when there is none; what does not fit in 32 bits is given as
/// the nearest number.
std::int32_t profileNumber(std::string_view value);

/// RunTimeError 5 for a section that a line "[section]" would not name again.
void checkProfileSection(const std::string& section);
/// RunTimeError 5 for a key that a line "key=value" would not have again.
void checkProfileKey(const std::string& key);
/// RunTimeError 5 for a value of more than one line, or with a zero byte.
void checkProfileValue(const std::string& value);

/// Whether a text has neither line ends nor zero bytes.
bool isOneProfileLine(std::string_view text);

}  // namespace velmora
