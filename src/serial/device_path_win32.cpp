#include "serial/device_path_win32.h"

#include <string_view>

namespace velmora {

namespace {

constexpr std::string_view kDevicePrefix = R"(\\.\)";
constexpr std::string_view kUnparsedPrefix = R"(\\?\)";

}  // namespace

std::string devicePath(const std::string& device) {
    if (device.starts_with(R"(\\)")) {
        return device;
    }
    std::string path(kDevicePrefix);
    path += device;
    return path;
}

std::string deviceName(const std::string& device) {
    const bool prefixed = device.starts_with(kDevicePrefix) || device.starts_with(kUnparsedPrefix);
    return prefixed ? device.substr(kDevicePrefix.size()) : device;
}

}  // namespace velmora
