// What there is to say of a device before a byte has passed.
#pragma once

#include <cstdint>
#include <optional>

#include "doctor/diagnosis.h"
#include "doctor/examined_device.h"
#include "serial/comm_device.h"
#include "serial/mode_string.h"

namespace velmora {

/// Why the device could not be opened, by the number that the attempt gave.
Verdict judgeOpening(const ExaminedDevice& device, SystemError error);

/// The adapter's chip and driver, what is known against it, and whether it will be slow at these settings.
StepFinding adapterFinding(const ExaminedDevice& device, const LineSettings& wanted);

/// Whether the chip says of itself, or is marked by its driver, that it is a copy.
bool isCopy(const PortIdentity& adapter);

/// What the modem lines say about the other end; nothing for a device that has none.
StepFinding modemLinesFinding(std::optional<std::uint32_t> lines);

}  // namespace velmora
