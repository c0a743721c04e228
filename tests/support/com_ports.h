// The serial ports that Windows tests may use, as scripts/with-com-ports.sh sets them up under Wine. On a
// real machine the variables name two ports that a null-modem cable joins; tests of ports that are not named
// are skipped.
#pragma once

#include <windows.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "serial/comm_device.h"
#include "serial/port_names.h"

namespace velmora::test {

struct ComPorts {
    std::string port = variable("VELMORA_TEST_PORT");             ///< the end under test
    std::string farPort = variable("VELMORA_TEST_FAR_PORT");      ///< the other end of its cable
    std::string pulled = variable("VELMORA_TEST_PULLED_PORT");    ///< its cable can be pulled, once
    std::string pull = variable("VELMORA_TEST_PULL");             ///< making this file pulls the cable
    std::string held = variable("VELMORA_TEST_HELD_PORT");        ///< in use by another program
    std::string missing = variable("VELMORA_TEST_MISSING_PORT");  ///< not there

    static std::string variable(const char* name) {
        const char* const value = std::getenv(name);
        return value == nullptr ? std::string() : std::string(value);
    }
    static std::int16_t number(const std::string& port) {
        return static_cast<std::int16_t>(comNumber(port).value_or(0));
    }
    void pullCable() const { std::ofstream(pull) << "now\n"; }
};

/// Whether ports are exclusive to the program that opens them: Windows sees to that, Wine does not.
inline bool portsAreExclusive() {
    return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") == nullptr;
}

/// Asks until the answer is yes or patience ends: bytes take a moment through the cable, and the system has
/// no wait with a limit for a port that is not opened for overlapped operation.
template <typename Question>
bool eventually(Question question) {
    constexpr ULONGLONG patienceMs = 5000;
    const ULONGLONG start = GetTickCount64();
    while (!question()) {
        if (GetTickCount64() - start > patienceMs) {
            return false;
        }
        Sleep(1);
    }
    return true;
}

/// Waits until `count` bytes wait at an open device.
inline bool waitForInput(CommDevice& device, std::size_t count = 1) {
    return eventually([&device, count] {
        CommStatus status;
        return device.clearError(status) != kSuccess || status.inQueue >= count;
    });
}

}  // namespace velmora::test
