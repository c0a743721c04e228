#include "base/profile_name.h"

#include <algorithm>

namespace velmora {
namespace {

constexpr std::size_t kLongest = 64;

bool isAllowed(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code >= ' ' && code != 0x7F && std::string_view("/\\:*?\"<>|").find(c) == std::string_view::npos;
}

}  // namespace

bool isProfileName(std::string_view name) {
    return !name.empty() && name.size() <= kLongest && std::all_of(name.begin(), name.end(), isAllowed) &&
           name.front() != ' ' && name.back() != ' ' && name.back() != '.';
}

std::string profiledName(std::string_view usual, std::string_view profile) {
    return std::string(usual) + "-" + std::string(profile);
}

}  // namespace velmora
