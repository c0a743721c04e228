// How long an adapter holds received bytes back so as to hand over more of them at once.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "serial/mode_string.h"

namespace velmora {

/// Whether so long a wait, once in each exchange of a record, costs more than a tenth of the line's time.
bool latencyMatters(std::chrono::milliseconds latency, const LineSettings& line);

/// "DEVICE holds received bytes back for 16 ms, which slows transfers down; …", with what this system's user
/// can do.
std::string latencyAdvice(const std::string& device, std::chrono::milliseconds latency);

/// The advice for a device that is not open and will be slow at the rate of the mode string `settings`; empty
/// for all others. On POSIX none is: there the time is changed when the device opens.
std::string latencyTip(const std::string& device, const std::string& settings);

#ifdef _WIN32
/// The latency timer that a driver was told to use ("COM7"), as FTDI's have it in the registry; nothing for
/// devices without.
std::optional<std::chrono::milliseconds> latencyTimer(const std::string& device);
#else
/// The latency timer of a device's chip ("/dev/ttyUSB0", or a link to it), as FTDI chips have one; nothing
/// for devices without. `devices` is the folder in which the system describes its terminals.
std::optional<std::chrono::milliseconds> latencyTimer(const std::string& device,
                                                      const std::string& devices = "/sys/class/tty");
#endif

}  // namespace velmora
