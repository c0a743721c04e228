// Why a port cannot be opened, in one sentence that says what to do about it.
#pragma once

#include <cstdint>
#include <string>

#include "serial/device_facts.h"

namespace velmora {

/// What kept a device from being opened.
enum class OpenFailureKind : std::uint8_t { Absent, NoPermission, Busy, Settings, Failed };

/// The kind of a failure that gave the number `code`, as describeOpenFailure takes it.
OpenFailureKind openFailureKind(std::int32_t code, const DeviceFacts& facts);

/// Who may open a device that this login may not, and how the login gets there.
std::string permissionSentence(const std::string& device, const DeviceFacts& facts);

/// One sentence for a device (or a name such as "COM99" that stands for none) that could not be opened.
/// `code` is the number that the attempt gave: the system's as kept by the plain layer, or a CommErrorNumber.
/// Looks at the device as it is now, and for a busy one at who has it.
std::string describeOpenFailure(const std::string& device, std::int32_t code);

/// The same from facts that were gathered before; `holder` as findHolder gives it.
std::string describeOpenFailure(const std::string& device, std::int32_t code, const DeviceFacts& facts,
                                const std::string& holder);

}  // namespace velmora
