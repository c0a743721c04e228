#include "link/crc.h"

#include <cassert>
#include <cstddef>

namespace velmora {
namespace {

constexpr std::uint16_t kPolynomial = 0xA001;
constexpr std::size_t kSlices = 8;

std::uint16_t swapBytes(unsigned value) {
    return static_cast<std::uint16_t>((value << 8) | (value >> 8));
}

}  // namespace

void Crc::load_CRCtable() {
    if (loaded_) {
        return;
    }
    for (unsigned i = 0; i < 256; ++i) {
        unsigned value = i;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value & 1) != 0 ? (value >> 1) ^ kPolynomial : value >> 1;
        }
        table_[0][i] = swapBytes(value);
    }
    for (std::size_t slice = 1; slice < kSlices; ++slice) {
        for (unsigned i = 0; i < 256; ++i) {
            const unsigned previous = table_[slice - 1][i];
            table_[slice][i] =
                static_cast<std::uint16_t>(((previous & 0xFF) << 8) ^ table_[0][previous >> 8]);
        }
    }
    loaded_ = true;
}

std::array<char, 2> Crc::check(std::string_view body) const {
    assert(loaded_);
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(body[i]); };
    // The register holds the CRC-16/ARC with its bytes swapped, so the byte that meets the next byte of
    // the body is the high one.
    unsigned crc = 0;
    std::size_t i = 0;
    for (; i + kSlices <= body.size(); i += kSlices) {
        crc = static_cast<unsigned>(table_[7][byteAt(i) ^ (crc >> 8)]) ^
              table_[6][byteAt(i + 1) ^ (crc & 0xFF)] ^ table_[5][byteAt(i + 2)] ^ table_[4][byteAt(i + 3)] ^
              table_[3][byteAt(i + 4)] ^ table_[2][byteAt(i + 5)] ^ table_[1][byteAt(i + 6)] ^
              table_[0][byteAt(i + 7)];
    }
    for (; i < body.size(); ++i) {
        crc = ((crc & 0xFF) << 8) ^ table_[0][byteAt(i) ^ (crc >> 8)];
    }
    return {static_cast<char>(crc >> 8), static_cast<char>(crc & 0xFF)};
}

}  // namespace velmora
