// Texts as byte strings: one char per byte, Windows-1252, compared and cased by their codes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// Removes leading and trailing blanks (code 32 only).
std::string trimBlanks(std::string_view text);
/// Removes trailing blanks (code 32 only).
std::string trimRight(std::string_view text);

/// Capital and small letters of Windows-1252, accented ones included; other bytes stay.
std::string upperCase(std::string_view text);
std::string lowerCase(std::string_view text);

/// Windows-1252 to UTF-8. The five unassigned bytes (0x81, 0x8D, 0x8F, 0x90, 0x9D) become U+FFFD.
std::string toUtf8(std::string_view windows1252);
/// As toUtf8, but nothing when a byte has no character.
std::optional<std::string> toUtf8Exact(std::string_view windows1252);
/// UTF-8 to Windows-1252; nothing when the text is not valid UTF-8 or a character has no byte.
std::optional<std::string> fromUtf8(std::string_view utf8);

/// The text with each control byte (0 to 31, 127) as "<", two hexadecimal digits and ">": one line, and
/// nothing that a terminal would obey.
std::string showControls(std::string_view text);

/// The text with "?" for every byte that is not ASCII.
std::string asciiOf(std::string_view text);

/// The bytes as upper-case hexadecimal pairs with a blank between them, for messages.
std::string hexDump(std::string_view bytes);
/// The bytes 32 to 126 as they are, every other one as "<hh>": one line, whatever it says.
std::string hexEscaped(std::string_view bytes);

}  // namespace velmora
