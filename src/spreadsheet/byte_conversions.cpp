#include "spreadsheet/byte_conversions.h"

#include <bit>
#include <limits>

namespace velmora {
namespace {

static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == sizeof(std::uint64_t));

std::uint64_t byteAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

}  // namespace

std::uint16_t bytesToUInt16(std::string_view bytes) {
    return static_cast<std::uint16_t>(byteAt(bytes, 0) | (byteAt(bytes, 1) << 8));
}

std::int16_t bytesToInt16(std::string_view bytes) {
    return static_cast<std::int16_t>(bytesToUInt16(bytes));
}

double bytesToDouble(std::string_view bytes) {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < sizeof bits; ++i) {
        bits |= byteAt(bytes, i) << (8 * i);
    }
    return std::bit_cast<double>(bits);
}

std::string int16ToBytes(int value) {
    const auto word = static_cast<std::uint16_t>(value);
    return {static_cast<char>(word & 0xFF), static_cast<char>(word >> 8)};
}

std::string doubleToBytes(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    std::string bytes;
    for (std::size_t i = 0; i < sizeof bits; ++i) {
        bytes += static_cast<char>((bits >> (8 * i)) & 0xFF);
    }
    return bytes;
}

}  // namespace velmora
