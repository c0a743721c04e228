// What the name of a device's instance on Windows says of an adapter.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// The USB numbers (hexadecimal, lower case) and the serial number; empty what the name does not have.
struct InstanceParts {
    std::string vendorId;
    std::string productId;
    std::string serial;
};

/// Reads the name of an instance: "USB\\VID_10C4&PID_EA60\\0001", with "&MI_nn" where an adapter has several
/// parts, or "FTDIBUS\\VID_0403+PID_6001+A50285BIA\\0000", where a letter for the port stands behind the
/// serial number. A serial number with "&" is none: the system has made it from the socket.
InstanceParts instanceParts(std::string_view instance);

}  // namespace velmora
