// What is known of a serial port and the adapter behind it.
#pragma once

#include <string>

namespace velmora {

/// A serial port that is present. Texts are in the system's encoding; what is not known is empty.
struct PortIdentity {
    int number = 0;          ///< as PortNames counts
    std::string device;      ///< path or name, for example "/dev/ttyUSB0" or "COM7"
    std::string stableName;  ///< stays with the adapter: its link by-id, on Windows its device instance
    std::string vendorId;    ///< four hexadecimal digits in lower case; only what hangs on USB has them
    std::string productId;   ///< likewise
    std::string serial;      ///< the adapter's own serial number
    std::string socket;      ///< where it is plugged in: the way from the computer to the socket
    std::string maker;       ///< as the device tells it
    std::string product;     ///< likewise
    std::string driver;
    std::string chip;         ///< for adapters whose chip is known
    std::string holder;       ///< the program that has the port open, as findHolder gives it
    bool mayOpen = false;     ///< this login has the permission
    std::string groupToJoin;  ///< the group that has it; empty when `mayOpen` or when no group has it
};

}  // namespace velmora
