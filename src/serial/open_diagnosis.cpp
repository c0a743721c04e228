#include "serial/open_diagnosis.h"

#ifdef _WIN32
#include "serial/comm_errors_win32.h"
#else
#include <cerrno>
#endif

#include "serial/comm_device.h"
#include "serial/serial_port.h"
#include "serial/system_text.h"

namespace velmora {

namespace {

/// Whether the number is how this system says that a device is there but does not answer any more.
bool isGone(std::int32_t code) {
#ifdef _WIN32
    switch (code) {
        case ERROR_NOT_READY:
        case ERROR_BAD_COMMAND:
        case ERROR_GEN_FAILURE:
        case kNoSuchDevice:
        case ERROR_OPERATION_ABORTED:
        case ERROR_DEVICE_NOT_CONNECTED:
        case ERROR_DEVICE_REMOVED:
            return true;
        default:
            break;
    }
#endif
    return code == kDeviceFailed;
}

/// Whether the number is how this system says that a device is none that bytes go through.
bool isNoSerialPort(std::int32_t code) {
#ifdef _WIN32
    return code == ERROR_INVALID_FUNCTION || code == ERROR_INVALID_HANDLE;
#else
    return code == ENOTTY;
#endif
}

std::string goneSentence(const std::string& device) {
    return device + " does not respond; is the adapter still plugged in?";
}

/// For a device that is missing to those who open it. One that is there by its name has lost its adapter on
/// Windows, where the name may stay for a while; elsewhere it is one of the standard ports' names, which are
/// there for ports that a machine has not.
std::string absentSentence(const std::string& device, const DeviceFacts& facts) {
    if (facts.exists) {
#ifdef _WIN32
        return goneSentence(device);
#else
        return device + " has no serial hardware behind it; choose another port.";
#endif
    }
    return device + " does not exist; is the adapter plugged in, and is it the right port?";
}

std::string failedSentence(const std::string& device, std::int32_t code) {
    if (isGone(code)) {
        return goneSentence(device);
    }
    if (isNoSerialPort(code)) {
        return device + " is not a serial port.";
    }
    if (code <= 0) {
        return device + " cannot be opened.";
    }
    std::string text = systemText(code);
    if (text.empty()) {
        return device + " cannot be opened: error " + std::to_string(code) + ".";
    }
    if (!text.ends_with('.')) {
        text += '.';
    }
    return device + " cannot be opened: " + text;
}

}  // namespace

OpenFailureKind openFailureKind(std::int32_t code, const DeviceFacts& facts) {
    switch (code) {
        case kPortInUse:
        case kCommAlreadyOpen:
            return OpenFailureKind::Busy;
        case kInvalidParameter:
        case kCommInvalidSettings:
            return OpenFailureKind::Settings;
        case kNoSuchPort:
        case kCommInvalidPort:
            return OpenFailureKind::Absent;
        default:
            break;
    }
    if (!facts.exists) {
        return OpenFailureKind::Absent;
    }
    return facts.mayOpen ? OpenFailureKind::Failed : OpenFailureKind::NoPermission;
}

std::string permissionSentence(const std::string& device, const DeviceFacts& facts) {
    const std::string start = "No permission to open " + device;
    if (facts.owner.empty()) {
        return start + ".";
    }
    const std::string owned = start + ", which belongs to user " + facts.owner + " and group " + facts.group;
    if (!facts.groupMayOpen) {
        return owned + "; the group may not open it either.";
    }
    if (facts.sessionIsMember) {
        return owned + "; " + facts.login + " is in that group, so something else forbids it.";
    }
    if (facts.loginIsMember) {
        return owned + "; " + facts.login + " is in that group from the next login on: log out and in again.";
    }
    return owned + "; " + facts.login + " is not in that group: run \"sudo usermod -aG " + facts.group + " " +
           facts.login + "\", then log out and in again.";
}

std::string describeOpenFailure(const std::string& device, std::int32_t code, const DeviceFacts& facts,
                                const std::string& holder) {
    switch (openFailureKind(code, facts)) {
        case OpenFailureKind::Absent:
            return absentSentence(device, facts);
        case OpenFailureKind::NoPermission:
            return permissionSentence(device, facts);
        case OpenFailureKind::Busy:
            return device + " is in use by " + (holder.empty() ? "another program" : holder) + ".";
        case OpenFailureKind::Settings:
            return device + " does not take these line settings; choose another speed.";
        case OpenFailureKind::Failed:
            return failedSentence(device, code);
    }
    return {};  // unreachable: every cause is above
}

std::string describeOpenFailure(const std::string& device, std::int32_t code) {
    const DeviceFacts facts = gatherDeviceFacts(device);
    const bool busy = openFailureKind(code, facts) == OpenFailureKind::Busy;
    return describeOpenFailure(device, code, facts, busy ? findHolder(device) : std::string());
}

}  // namespace velmora
