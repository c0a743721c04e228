// The system's words for its error numbers.
#pragma once

#include <string>

#include "serial/comm_device.h"

namespace velmora {

/// The system's message for one of its own numbers (strerror; FormatMessageA in the default language), in one
/// line without a line end. Empty when the system has none. At most 255 bytes on Windows.
std::string systemText(SystemError number);

}  // namespace velmora
