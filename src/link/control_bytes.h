// Searching for the bytes that frame and escape.
#pragma once

#include <cstring>
#include <string_view>

#include "link/frames.h"

namespace velmora {

/// Where the next DLE stands from `from` on; the size of `bytes` when there is none. Fast for both kinds of
/// data: many DLEs close together, and long stretches without one.
inline std::size_t findDle(std::string_view bytes, std::size_t from) {
    constexpr std::size_t kNear = 16;  // below it, starting a memchr costs more than looking
    const std::size_t nearEnd = bytes.size() - from > kNear ? from + kNear : bytes.size();
    for (; from < nearEnd; ++from) {
        if (bytes[from] == kDle) {
            return from;
        }
    }
    if (from == bytes.size()) {
        return from;
    }
    const void* found = std::memchr(bytes.data() + from, kDle, bytes.size() - from);
    return found == nullptr ? bytes.size()
                            : static_cast<std::size_t>(static_cast<const char*>(found) - bytes.data());
}

/// Where the next header (SYN DLE STX) stands from `from` on; the size of `bytes` when there is none. Looks
/// at every third byte where none of the three occurs, and at no byte more than three times whatever the
/// bytes.
inline std::size_t findHeader(std::string_view bytes, std::size_t from) {
    std::size_t last = from + kHeaderLength - 1;
    while (last < bytes.size()) {
        switch (bytes[last]) {
            case kStx:
                if (bytes[last - 1] == kDle && bytes[last - 2] == kSyn) {
                    return last - (kHeaderLength - 1);
                }
                last += 3;
                break;
            case kDle:
                last += 1;
                break;
            case kSyn:
                last += 2;
                break;
            default:
                last += 3;
                break;
        }
    }
    return bytes.size();
}

}  // namespace velmora
