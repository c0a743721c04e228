// What the system knows about a serial device and this login's access to it.
#pragma once

#include <string>

namespace velmora {

struct DeviceFacts {
    bool exists = false;
    bool mayOpen = false;  ///< for reading and writing
    std::string stamp;     ///< differs when the device was made anew; the same for all on Windows
    // Empty and false on Windows, whose serial devices have neither owner nor group.
    std::string owner;  ///< user name, or the number in digits when it has none
    std::string group;
    bool groupMayOpen = false;   ///< the group has the right to read and write
    std::string login;           ///< the user that this program runs as
    bool loginIsMember = false;  ///< the login is listed in the group
    bool sessionIsMember =
        false;  ///< the running session has the group; it lags behind the list until the next login
};

/// Looks at a device ("/dev/ttyUSB0", "COM7"). One that is not there gives facts with `exists` false.
DeviceFacts gatherDeviceFacts(const std::string& device);

#ifdef _WIN32
/// The program that has the device open; always empty, since the system does not tell.
std::string findHolder(const std::string& device);
#else
/// The program that has the device open, as "name (process 123)"; empty when the system does not tell, which
/// it does only for programs of the same user. `processes` is the folder with the system's process table.
std::string findHolder(const std::string& device, const std::string& processes = "/proc");

/// Whether anybody is known to have the device open by another descriptor than this program's `descriptor`.
bool heldByOthers(const std::string& device, int descriptor, const std::string& processes = "/proc");
#endif

}  // namespace velmora
