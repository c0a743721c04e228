// The first of these has the types of the others.
// clang-format off
#include <windows.h>
#include <devguid.h>
#include <setupapi.h>
// clang-format on

#include <array>
#include <iterator>

#include "serial/com_port_interface_win32.h"
#include "serial/found_ports_win32.h"
#include "serial/port_list.h"

namespace velmora {

namespace {

/// The longest text that is read of a port; the system's own limit for such names is below it.
using Buffer = std::array<char, 512>;

/// A registry text may come with or without its closing zero.
std::string textIn(const Buffer& buffer, DWORD size) {
    const std::string text(buffer.data(), size);
    return text.substr(0, text.find('\0'));
}

/// The ports that drivers have announced, with names only: the one list that has virtual ports too.
std::vector<FoundPort> announcedPorts() {
    std::vector<FoundPort> ports;
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, R"(HARDWARE\DEVICEMAP\SERIALCOMM)", 0, KEY_READ, &key) !=
        ERROR_SUCCESS) {
        return ports;
    }
    for (DWORD index = 0;; ++index) {
        Buffer driver{};
        Buffer name{};
        auto driverLength = static_cast<DWORD>(driver.size());
        auto nameSize = static_cast<DWORD>(name.size());
        DWORD type = 0;
        const LSTATUS status = RegEnumValueA(key, index, driver.data(), &driverLength, nullptr, &type,
                                             reinterpret_cast<BYTE*>(name.data()), &nameSize);
        if (status == ERROR_SUCCESS && type == REG_SZ) {
            ports.push_back(FoundPort{textIn(name, nameSize), {}, {}, {}, {}, {}});
        } else if (status != ERROR_SUCCESS && status != ERROR_MORE_DATA) {
            break;
        }
    }
    RegCloseKey(key);
    return ports;
}

/// A text, or the first of several.
std::string property(HDEVINFO devices, SP_DEVINFO_DATA& device, DWORD which) {
    Buffer text{};
    DWORD size = 0;
    DWORD type = 0;
    if (SetupDiGetDeviceRegistryPropertyA(devices, &device, which, &type,
                                          reinterpret_cast<BYTE*>(text.data()),
                                          static_cast<DWORD>(text.size()), &size) == FALSE ||
        (type != REG_SZ && type != REG_MULTI_SZ)) {
        return {};
    }
    return textIn(text, size);
}

std::string portName(HDEVINFO devices, SP_DEVINFO_DATA& device) {
    HKEY key = SetupDiOpenDevRegKey(devices, &device, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_READ);
    if (key == INVALID_HANDLE_VALUE) {
        return {};
    }
    Buffer name{};
    auto size = static_cast<DWORD>(name.size());
    DWORD type = 0;
    const LSTATUS status =
        RegQueryValueExA(key, "PortName", nullptr, &type, reinterpret_cast<BYTE*>(name.data()), &size);
    RegCloseKey(key);
    return status == ERROR_SUCCESS && type == REG_SZ ? textIn(name, size) : std::string();
}

std::string instanceOf(HDEVINFO devices, SP_DEVINFO_DATA& device) {
    Buffer text{};
    DWORD size = 0;
    if (SetupDiGetDeviceInstanceIdA(devices, &device, text.data(), static_cast<DWORD>(text.size()), &size) ==
        FALSE) {
        return {};
    }
    return textIn(text, size);
}

/// The devices of a class or with an interface, with what they are called in the device manager.
std::vector<FoundPort> describedPorts(const GUID& of, DWORD which) {
    std::vector<FoundPort> ports;
    const HDEVINFO devices = SetupDiGetClassDevsA(&of, nullptr, nullptr, which);
    if (devices == INVALID_HANDLE_VALUE) {
        return ports;
    }
    SP_DEVINFO_DATA device{};
    device.cbSize = sizeof device;
    for (DWORD index = 0; SetupDiEnumDeviceInfo(devices, index, &device) != FALSE; ++index) {
        ports.push_back(FoundPort{portName(devices, device), property(devices, device, SPDRP_FRIENDLYNAME),
                                  property(devices, device, SPDRP_MFG), instanceOf(devices, device),
                                  property(devices, device, SPDRP_SERVICE),
                                  property(devices, device, SPDRP_LOCATION_PATHS)});
    }
    SetupDiDestroyDeviceInfoList(devices);
    return ports;
}

/// The devices with a serial port's interface that are plugged in, whatever class their drivers put them in,
/// and those of the class "Ports" behind them: older drivers announce no interface.
std::vector<FoundPort> pluggedInPorts() {
    std::vector<FoundPort> ports = describedPorts(kComPortInterface, DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
    std::vector<FoundPort> ofClass = describedPorts(GUID_DEVCLASS_PORTS, DIGCF_PRESENT);
    ports.insert(ports.end(), std::make_move_iterator(ofClass.begin()),
                 std::make_move_iterator(ofClass.end()));
    return ports;
}

}  // namespace

/// The system tells nobody who holds a port.
std::vector<PortIdentity> listPorts(PortNames& names, Holders /*holders*/) {
    return serialDevices(announcedPorts(), pluggedInPorts(), names);
}

}  // namespace velmora
