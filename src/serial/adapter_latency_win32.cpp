// The first of these has the types of the others.
// clang-format off
#include <windows.h>
#include <devguid.h>
#include <setupapi.h>
// clang-format on

#include <array>

#include "base/byte_text.h"
#include "serial/adapter_latency.h"
#include "serial/device_path_win32.h"

namespace velmora {
namespace {

/// Whether the settings of a device are those of the port.
bool isPort(HKEY settings, const std::string& port) {
    std::array<char, 256> name{};
    auto size = static_cast<DWORD>(name.size() - 1);
    DWORD type = 0;
    return RegQueryValueExA(settings, "PortName", nullptr, &type, reinterpret_cast<BYTE*>(name.data()),
                            &size) == ERROR_SUCCESS &&
           type == REG_SZ && upperCase(name.data()) == port;
}

std::optional<std::chrono::milliseconds> latencyIn(HKEY settings) {
    DWORD milliseconds = 0;
    DWORD size = sizeof milliseconds;
    DWORD type = 0;
    if (RegQueryValueExA(settings, "LatencyTimer", nullptr, &type, reinterpret_cast<BYTE*>(&milliseconds),
                         &size) != ERROR_SUCCESS ||
        type != REG_DWORD) {
        return std::nullopt;
    }
    return std::chrono::milliseconds(milliseconds);
}

}  // namespace

std::optional<std::chrono::milliseconds> latencyTimer(const std::string& device) {
    const std::string port = upperCase(deviceName(device));
    const HDEVINFO devices = SetupDiGetClassDevsA(&GUID_DEVCLASS_PORTS, nullptr, nullptr, DIGCF_PRESENT);
    if (devices == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    std::optional<std::chrono::milliseconds> latency;
    SP_DEVINFO_DATA found{};
    found.cbSize = sizeof found;
    for (DWORD index = 0; !latency && SetupDiEnumDeviceInfo(devices, index, &found) != FALSE; ++index) {
        HKEY settings = SetupDiOpenDevRegKey(devices, &found, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_READ);
        if (settings == INVALID_HANDLE_VALUE) {
            continue;
        }
        if (isPort(settings, port)) {
            latency = latencyIn(settings);
        }
        RegCloseKey(settings);
    }
    SetupDiDestroyDeviceInfoList(devices);
    return latency;
}

std::string latencyTip(const std::string& device, const std::string& settings) {
    const auto latency = latencyTimer(device);
    const auto line = parseModeString(settings);
    return latency && line && latencyMatters(*latency, *line) ? latencyAdvice(device, *latency)
                                                              : std::string();
}

}  // namespace velmora
