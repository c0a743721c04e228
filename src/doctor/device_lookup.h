// Gathering what the system knows of a device.
#pragma once

#include <string>

#include "doctor/examined_device.h"
#include "serial/port_names.h"

namespace velmora {

/// What is known of the port with that number in `names`; `shown` is what messages call it where there is no
/// device.
ExaminedDevice lookUpDevice(PortNames& names, int number, const std::string& shown);

}  // namespace velmora
