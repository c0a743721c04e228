// The serial device of the system that this program is built for, as the virtual Organiser's line.
#pragma once

#include <memory>
#include <string>

#include "organiser/organiser_line.h"

namespace velmora {

/// Opens a serial device for this program alone: a path on POSIX systems, a name such as "COM7" on Windows.
/// `baud` is one of knownLineSpeeds(). Throws LineError that says what is wrong.
std::unique_ptr<OrganiserLine> openDeviceLine(const std::string& device, int baud);

}  // namespace velmora
