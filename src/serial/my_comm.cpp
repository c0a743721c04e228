#include "serial/my_comm.h"

#include <algorithm>
#include <limits>

namespace velmora {

namespace {

constexpr int kDtrLine = 2;
constexpr int kRtsLine = 3;

constexpr const char* kPortAlreadyOpenText = "Port already open";

}  // namespace

myComm::~myComm() {
    myComm::ClosePort();
}

bool myComm::OpenPort() {
    if (open_) {
        throw CommError(kCommAlreadyOpen, kPortAlreadyOpenText, "OpenPort");
    }
    switch (plain_.CommOpen("COM" + std::to_string(number_), settings_, dtrEnable_)) {
        case kSuccess:
            break;
        case kNoSuchPort:
            throw CommError(kCommInvalidPort, "Invalid port number", "OpenPort");
        case kPortInUse:
            throw CommError(kCommAlreadyOpen, kPortAlreadyOpenText, "OpenPort");
        case kInvalidParameter:
            throw CommError(kCommInvalidSettings, "Invalid port settings", "OpenPort");
        default:
            raiseFailure("OpenPort");
    }
    open_ = true;
    for (PortObserver* observer : observers_) {
        observer->portOpened(plain_.handle());
    }
    return true;
}

bool myComm::ClosePort() {
    if (open_) {
        for (PortObserver* observer : observers_) {
            observer->portClosing(plain_.handle());
        }
        plain_.CommClose();
        open_ = false;
    }
    return true;
}

bool myComm::Send(std::string_view data) {
    requireOpen("Send");
    for (PortObserver* observer : observers_) {
        observer->portWriting(data);
    }
    if (plain_.CommWrite(data) < 0) {
        raiseFailure("Send");
    }
    return true;
}

bool myComm::GetInput(std::size_t maximum, std::string& text) {
    requireOpen("GetInput");
    if (plain_.CommRead(text, maximum) < 0) {
        requireOpen("GetInput");
        raiseFailure("GetInput");
    }
    if (!text.empty()) {
        for (PortObserver* observer : observers_) {
            observer->portRead(text);
        }
    }
    return true;
}

void myComm::setSettings(const std::string& settings) {
    if (open_) {
        throw CommError(kCommSettingsWhileOpen, kPortAlreadyOpenText, "Settings");
    }
    settings_ = settings;
}

void myComm::setPortOpen(bool open) {
    if (open) {
        OpenPort();
    } else {
        ClosePort();
    }
}

std::int16_t myComm::InBufferCount() {
    std::size_t count = 0;
    if (plain_.InputQueueCount(count) != kSuccess) {
        raiseFailure("InBufferCount");
    }
    constexpr std::size_t most = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(std::min(count, most));
}

void myComm::setDTREnable(bool enable) {
    if (open_) {
        plain_.CommSetLine(kDtrLine, enable);
    }
    dtrEnable_ = enable;
}

void myComm::setRTSEnable(bool enable) {
    if (open_) {
        plain_.CommSetLine(kRtsLine, enable);
    }
    rtsEnable_ = enable;
}

bool myComm::DSRHolding() {
    bool state = false;
    plain_.CommReadCD(kDsrOn, state);
    return state;
}

bool myComm::CTSHolding() {
    bool state = false;
    plain_.CommReadCD(kCtsOn, state);
    return state;
}

void myComm::requireOpen(const char* source) const {
    if (!open_) {
        throw CommError(kCommNotOpen, "Port not open", source);
    }
}

void myComm::raiseFailure(const char* source) const {
    throw CommError(kCommFailed, plain_.fullErrorDescription(), source);
}

}  // namespace velmora
