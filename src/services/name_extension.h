// Extensions of the names that the Organiser gives.
#pragma once

#include <cstddef>
#include <string_view>

namespace velmora {

/// Whether a name ends in an extension: up to four characters behind its last ".". A name without one gets
/// that of its kind of file.
inline bool hasExtension(std::string_view name) {
    constexpr std::size_t kLongestExtension = 4;
    const std::size_t point = name.rfind('.');
    return point != std::string_view::npos && name.size() - point - 1 <= kLongestExtension;
}

}  // namespace velmora
