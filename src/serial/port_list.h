// The serial devices that are present, for choosing one.
#pragma once

#include <string>
#include <vector>

#include "serial/port_names.h"

namespace velmora {

struct SerialDevice {
    int number = 0;           ///< as PortNames counts
    std::string device;       ///< path or name, for example "/dev/ttyUSB0" or "COM7"
    std::string maker;        ///< as the device tells it; empty when it does not
    std::string product;      ///< likewise
    bool mayOpen = false;     ///< this login has the permission
    std::string groupToJoin;  ///< the group that has it; empty when `mayOpen` or when no group has it
};

/// Lists the devices in the order of their numbers. Ports that the system only reserves a name for, without
/// hardware, are left out, consoles and pseudo-terminals too. A device that `names` has no number for gets
/// one there.
#ifdef _WIN32
/// Every device may be opened as far as the system tells.
std::vector<SerialDevice> listSerialDevices(PortNames& names);
#else
/// The folders are where the system describes its devices and where their files are.
std::vector<SerialDevice> listSerialDevices(PortNames& names, const std::string& systemFolder = "/sys",
                                            const std::string& deviceFolder = "/dev");
#endif

}  // namespace velmora
