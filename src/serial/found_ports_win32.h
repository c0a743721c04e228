// From what Windows tells about its serial ports to the list that a user chooses from.
#pragma once

#include <string>
#include <vector>

#include "serial/port_list.h"

namespace velmora {

/// A port as one of the system's lists has it.
struct FoundPort {
    std::string name;           ///< "COM7", or the name of a port that is called otherwise
    std::string description;    ///< "USB Serial Port (COM7)"; empty when the list has none
    std::string maker;          ///< empty when the list has none
    std::string instance = {};  ///< the device's instance; empty when the list has none
    std::string driver = {};    ///< likewise
    std::string socket = {};    ///< the way to where it is plugged in, likewise
};

/// Joins the ports that drivers have announced (names only) with the devices that are plugged in (with their
/// descriptions), in the order of the numbers that `names` has for them. Of the devices, only those called
/// COM and a number count: the others, the printer ports, are of the same class. A name that is in both lists
/// or twice in one makes one entry. A port "COM<n>" whose number `names` gives to another device is listed by
/// another number that stands for it, or not at all.
std::vector<PortIdentity> serialDevices(const std::vector<FoundPort>& announced,
                                        const std::vector<FoundPort>& pluggedIn, PortNames& names);

}  // namespace velmora
