#include "platform/posix/resolved_path.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>

#include "base/run_time_error.h"

namespace velmora {
namespace {

std::optional<std::string> realPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
    return real != nullptr ? std::optional(std::string(real.get())) : std::nullopt;
}

}  // namespace

std::string pathBehindLinks(std::string path) {
    constexpr int kMostLinks = 40;  // as the kernel
    for (int links = 0; links <= kMostLinks; ++links) {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = readlink(path.c_str(), target.data(), target.size());
        if (length <= 0) {
            return path;
        }
        const std::string next(target.data(), static_cast<std::size_t>(length));
        const std::string folder = path.substr(0, path.rfind('/') + 1);
        path = next.front() == '/' ? next : folder + next;
    }
    throw RunTimeError(ErrorNumber::BadFileName, path);
}

std::optional<std::string> resolvedPosixPath(const std::string& path) {
    if (std::optional<std::string> real = realPath(path)) {
        return real;
    }
    if (errno != ENOENT) {
        return std::nullopt;
    }
    const std::string place = pathBehindLinks(path);
    const std::size_t nameStart = place.rfind('/') + 1;
    const std::optional<std::string> folder = realPath(place.substr(0, nameStart) + ".");
    if (!folder || nameStart == place.size()) {
        return std::nullopt;
    }
    return (*folder == "/" ? "" : *folder) + "/" + place.substr(nameStart);
}

}  // namespace velmora
