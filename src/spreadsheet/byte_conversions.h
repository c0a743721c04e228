// Numbers as the bytes of a worksheet file: little-endian, doubles as IEEE 754 binary64.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

/// The number in the first two bytes. Requires: at least two bytes.
std::int16_t bytesToInt16(std::string_view bytes);
/// As bytesToInt16, 0 to 65,535.
std::uint16_t bytesToUInt16(std::string_view bytes);
/// The number in the first eight bytes. Requires: at least eight bytes.
double bytesToDouble(std::string_view bytes);

/// The two bytes of the low 16 bits of a number.
std::string int16ToBytes(int value);
/// The eight bytes of a number.
std::string doubleToBytes(double value);

}  // namespace velmora
