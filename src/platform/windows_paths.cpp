#include "platform/windows_paths.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/ascii.h"
#include "base/byte_text.h"
#include "platform/path_components.h"

namespace velmora {
namespace {

bool beginsWithDrive(std::string_view path) {
    return path.size() >= 2 && isLetter(path[0]) && path[1] == ':';
}

bool isNetworkPath(std::string_view path) {
    return path.size() >= 2 && isWindowsSeparator(path[0]) && isWindowsSeparator(path[1]);
}

/// Length of the drive or network share at the start of a path, without the separator behind it.
std::size_t driveLength(std::string_view path) {
    if (beginsWithDrive(path)) {
        return 2;
    }
    if (!isNetworkPath(path)) {
        return 0;
    }
    const std::size_t server = std::min(path.find_first_of(kWindowsSeparators, 2), path.size());
    return std::min(path.find_first_of(kWindowsSeparators, std::min(server + 1, path.size())), path.size());
}

/// Whether a network path names a server and a share; "." and "?" as the server are the roots of devices.
bool namesShare(std::string_view path) {
    const std::size_t serverEnd = std::min(path.find_first_of(kWindowsSeparators, 2), path.size());
    const std::size_t shareStart = std::min(serverEnd + 1, path.size());
    const auto isName = [](std::string_view component) {
        return component.find_first_not_of(".?* ") != std::string_view::npos;
    };
    return isName(path.substr(2, serverEnd - 2)) &&
           isName(path.substr(shareStart, driveLength(path) - shareStart));
}

/// Windows opens a device, not a file, for these names, whatever extension follows.
bool isDeviceName(std::string_view component) {
    constexpr std::array<std::string_view, 7> kDevices = {"CON",    "PRN",     "AUX",   "NUL",
                                                          "CONIN$", "CONOUT$", "CLOCK$"};
    constexpr std::string_view kPortNumbers = "0123456789\xB9\xB2\xB3";  // raised 1, 2 and 3 count too
    const std::string name = upperCase(trimRight(component.substr(0, component.find('.'))));
    if (std::find(kDevices.begin(), kDevices.end(), name) != kDevices.end()) {
        return true;
    }
    return name.size() == 4 && (name.substr(0, 3) == "COM" || name.substr(0, 3) == "LPT") &&
           kPortNumbers.find(name[3]) != std::string_view::npos;
}

bool isAllowedComponent(std::string_view component) {
    if (component.empty() || component == "." || component == "..") {
        return true;
    }
    return component.find_first_of("<>|\":") == std::string_view::npos &&
           component.find_first_not_of(". ") != std::string_view::npos && !isDeviceName(component);
}

}  // namespace

WindowsPaths::WindowsPaths(std::string currentFolder) : currentFolder_(std::move(currentFolder)) {}

std::optional<std::string> WindowsPaths::fromOrganiser(std::string_view name) const {
    if (holdsControlCode(name) || !toUtf8Exact(name)) {
        return std::nullopt;
    }
    if (isNetworkPath(name) && !namesShare(name)) {
        return std::nullopt;
    }
    std::string_view rest = beginsWithDrive(name) ? name.substr(2) : name;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of(kWindowsSeparators), rest.size());
        if (!isAllowedComponent(rest.substr(0, end))) {
            return std::nullopt;
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    std::string path(name);
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::optional<std::string> WindowsPaths::toOrganiser(std::string_view name) const {
    return toUtf8Exact(name) ? std::optional(std::string(name)) : std::nullopt;
}

std::string WindowsPaths::join(std::string_view folder, std::string_view name) const {
    return joinWithOne(kWindowsSeparators, folder, name);
}

std::string WindowsPaths::drive(std::string_view path) const {
    return std::string(path.substr(0, driveLength(path)));
}

std::string WindowsPaths::parentFolder(std::string_view path) const {
    const std::size_t rootEnd = driveLength(path);
    const std::string_view behindRoot = path.substr(rootEnd);
    const std::size_t cut = behindRoot.find_last_of(kWindowsSeparators);
    if (cut == std::string_view::npos) {
        return std::string(path.substr(0, rootEnd));
    }
    const std::size_t last = behindRoot.substr(0, cut).find_last_not_of(kWindowsSeparators);
    return std::string(path.substr(0, rootEnd + (last == std::string_view::npos ? 1 : last + 1)));
}

std::string WindowsPaths::lastComponent(std::string_view path) const {
    const std::string_view behindRoot = path.substr(driveLength(path));
    return std::string(behindRoot.substr(behindRoot.find_last_of(kWindowsSeparators) + 1));
}

std::string WindowsPaths::absolute(std::string_view path) const {
    const std::string currentDrive = drive(currentFolder_);
    std::string root = drive(path);
    std::string_view rest = path.substr(root.size());
    const bool rooted = isNetworkPath(path) || (!rest.empty() && isWindowsSeparator(rest.front()));
    const bool onCurrentDrive = root.empty() || upperCase(root) == upperCase(currentDrive);
    std::string components(rest);
    if (onCurrentDrive && !rooted) {
        components = currentFolder_.substr(currentDrive.size()) + "\\" + components;
    }
    if (root.empty()) {
        root = currentDrive;
    }
    std::replace(root.begin(), root.end(), '/', '\\');
    return root + "\\" + resolvedComponents(kWindowsSeparators, components);
}

}  // namespace velmora
