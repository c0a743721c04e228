#include <windows.h>

#include <array>

#include "serial/device_facts.h"
#include "serial/device_path_win32.h"

namespace velmora {

namespace {

/// Whether the name is among those of the system's devices. The list is not asked alone: Wine has only those
/// in it that were there at its start.
bool deviceExists(const std::string& device) {
    std::array<char, MAX_PATH> target{};
    if (QueryDosDeviceA(deviceName(device).c_str(), target.data(), static_cast<DWORD>(target.size())) != 0 ||
        GetLastError() == ERROR_INSUFFICIENT_BUFFER) {
        return true;
    }
    const HANDLE handle = CreateFileA(devicePath(device).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return false;
    }
    CloseHandle(handle);
    return true;
}

}  // namespace

/// Serial devices have no owners and groups on Windows: whoever is logged in may open them.
DeviceFacts gatherDeviceFacts(const std::string& device) {
    DeviceFacts facts;
    facts.exists = deviceExists(device);
    facts.mayOpen = facts.exists;
    return facts;
}

/// Windows tells nobody which program has a device open.
std::string findHolder(const std::string& /*device*/) {
    return {};
}

}  // namespace velmora
