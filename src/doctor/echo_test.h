// Whether what is sent comes back.
#pragma once

#include <cstdint>
#include <vector>

#include "doctor/line_probe.h"

namespace velmora {

/// Whether some bytes that make no frame come back as they were sent.
bool echoes(LineProbe& probe);

/// What came back when every byte value was sent at each rate.
struct LoopbackResult {
    std::vector<std::uint32_t> whole;  ///< rates at which all came back
    std::vector<std::uint32_t> other;  ///< rates at which they did not; those that a device refuses count not
};

/// Sends every byte value at each of the rates that are usual. Leaves the line at the last of them.
LoopbackResult tryLoopback(LineProbe& probe);

}  // namespace velmora
