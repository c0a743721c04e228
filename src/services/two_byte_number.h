// Two-byte numbers as the Organiser's files and messages hold them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/run_time_error.h"

namespace velmora {

constexpr std::uint64_t kLargestTwoByteNumber = 65'535;

/// The number as two bytes, most significant first; RunTimeError 6 when it does not fit.
inline std::string twoBytes(std::uint64_t number) {
    if (number > kLargestTwoByteNumber) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return {static_cast<char>(number / 256), static_cast<char>(number % 256)};
}

/// The number in the two bytes at `offset`, most significant first. Requires: both bytes lie in `bytes`.
inline std::uint32_t twoByteNumberAt(std::string_view bytes, std::size_t offset) {
    return static_cast<unsigned char>(bytes[offset]) * 256U + static_cast<unsigned char>(bytes[offset + 1]);
}

}  // namespace velmora
