#include "platform/posix/posix_paths.h"

#include <algorithm>
#include <utility>

#include "base/byte_text.h"
#include "platform/path_components.h"

namespace velmora {

PosixPaths::PosixPaths(std::string currentFolder) : currentFolder_(std::move(currentFolder)) {}

std::optional<std::string> PosixPaths::fromOrganiser(std::string_view name) const {
    if (holdsControlCode(name)) {
        return std::nullopt;
    }
    std::string slashed(name);
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
    return toUtf8Exact(slashed);
}

std::optional<std::string> PosixPaths::toOrganiser(std::string_view name) const {
    if (holdsControlCode(name) || name.find('\\') != std::string_view::npos) {
        return std::nullopt;
    }
    return fromUtf8(name);
}

std::string PosixPaths::join(std::string_view folder, std::string_view name) const {
    return joinWithOne("/", folder, name);
}

std::string PosixPaths::drive(std::string_view) const {
    return {};
}

std::string PosixPaths::parentFolder(std::string_view path) const {
    const std::size_t cut = path.rfind('/');
    if (cut == std::string_view::npos) {
        return {};
    }
    const std::size_t last = path.substr(0, cut).find_last_not_of('/');
    return last == std::string_view::npos ? "/" : std::string(path.substr(0, last + 1));
}

std::string PosixPaths::lastComponent(std::string_view path) const {
    return std::string(path.substr(path.rfind('/') + 1));
}

std::string PosixPaths::absolute(std::string_view path) const {
    const std::string whole =
        path.substr(0, 1) == "/" ? std::string(path) : currentFolder_ + "/" + std::string(path);
    return "/" + resolvedComponents("/", whole);
}

}  // namespace velmora
