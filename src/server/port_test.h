// Testing whether a serial port is free.
#pragma once

#include <cstdint>

#include "base/clock.h"
#include "base/event_yield.h"
#include "serial/serial_port.h"

namespace velmora {

/// Bit of the flags of checkPort: probe for a modem whatever DontTestModem says.
constexpr std::int16_t kProbeModem = 2;
/// Another bit of the flags; it was meant to suppress the probe and has no effect.
constexpr std::int16_t kNoProbe = 4;

/// Whether checkPort probes. Computed bitwise on 16-bit truth values, whose "true" is all ones: the
/// complement of kNoProbe takes one bit out of it, which leaves it true.
bool portTestProbes(std::int16_t flags, bool dontTestModem);

/// Opens the port with this number, probes for a modem if asked ("AT" and a quarter of a second for the
/// answer, during which `yield` is given time), closes it again and returns a PortStatusNumber. Leaves the
/// port object's number set to `number`. The port must be closed.
std::int32_t testPort(SerialPort& port, std::int16_t number, bool probe, const Clock& clock,
                      EventYield& yield);

}  // namespace velmora
