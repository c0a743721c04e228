// From what the device manager tells about terminals to the list that a user chooses from.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "serial/device_facts.h"
#include "serial/port_identity.h"
#include "serial/port_names.h"

namespace velmora {

/// A terminal as the device manager (udev) describes it; what it does not know is empty.
struct FoundTerminal {
    std::string device;              ///< its file, "/dev/ttyUSB0"
    std::vector<std::string> links;  ///< other names of that file
    bool hardware = false;           ///< there is a device behind the name
    std::string vendorId;
    std::string productId;
    std::string serial;
    std::string socket;
    std::string maker;
    std::string product;
    std::string driver;
};

/// What is asked about a device's file.
struct DeviceQuestions {
    std::function<DeviceFacts(const std::string& device)> facts;
    std::function<std::string(const std::string& device)> holder;  ///< may be missing
};

/// The ports among the terminals, as listPorts gives them. A device that is told twice is one port; a link
/// that two devices claim is nobody's.
std::vector<PortIdentity> portsOf(std::vector<FoundTerminal> terminals, const DeviceQuestions& ask,
                                  PortNames& names);

}  // namespace velmora
