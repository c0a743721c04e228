#include "platform/path_components.h"

#include <algorithm>

namespace velmora {

bool holdsControlCode(std::string_view name) {
    return std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 32; });
}

std::string joinWithOne(std::string_view separators, std::string_view folder, std::string_view name) {
    if (folder.empty()) {
        return std::string(name);
    }
    const std::size_t folderEnd = folder.find_last_not_of(separators) + 1;
    const std::size_t nameStart = std::min(name.find_first_not_of(separators), name.size());
    std::string path(folder.substr(0, folderEnd));
    path += separators.front();
    path += name.substr(nameStart);
    return path;
}

std::string resolvedComponents(std::string_view separators, std::string_view path) {
    std::string resolved;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of(separators), path.size());
        const std::string_view component = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (component.empty() || component == ".") {
            continue;
        }
        if (component == "..") {
            const std::size_t cut = resolved.rfind(separators.front());
            resolved.resize(cut == std::string::npos ? 0 : cut);
            continue;
        }
        if (!resolved.empty()) {
            resolved += separators.front();
        }
        resolved += component;
    }
    return resolved;
}

}  // namespace velmora
