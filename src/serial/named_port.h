// The port that a user names.
#pragma once

#include <stdexcept>
#include <string>

#include "serial/port_names.h"

namespace velmora {

/// The name fits more than one adapter. The text is one sentence for the user.
class SeveralAdapters : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The number for a port as a user names it: "COM7", a device's path, or "usb:0403:6001:A50285BI" for an
/// adapter wherever it is, which `names` lets the number stand for. An adapter that is not there stays a
/// device that does not exist. Throws SeveralAdapters.
int placeNamedPort(PortNames& names, const std::string& name);

}  // namespace velmora
