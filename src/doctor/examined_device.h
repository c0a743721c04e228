// What is known of a device before it is opened.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "serial/device_facts.h"
#include "serial/port_identity.h"

namespace velmora {

/// Gathered by the program, so that an examination asks the system for nothing but the line.
struct ExaminedDevice {
    std::string name;  ///< the device as messages call it
    DeviceFacts facts;
    std::string holder;                                ///< as findHolder gives it
    PortIdentity identity;                             ///< empty texts where the system knows nothing
    std::optional<std::chrono::milliseconds> latency;  ///< the adapter's latency timer, where it has one
};

}  // namespace velmora
