// What the numbers of failed calls of Windows mean to the layers above the serial device.
#pragma once

#include <windows.h>

#include "serial/comm_device.h"

namespace velmora {

/// ERROR_NO_SUCH_DEVICE, which not every compiler's headers have.
inline constexpr SystemError kNoSuchDevice = 433;

/// The number of a call that failed with `error`. A driver may fail without a number (0), and a failure must
/// not read as success: that is kDeviceFailed.
SystemError failure(DWORD error);

/// As failure, for an opening: the several ways to say that a port is missing or held are kNoSuchPort and
/// kPortInUse.
SystemError openFailure(DWORD error);

/// As failure, for a call that carries bytes or asks for them on an open device: "access denied" cannot be
/// another program's hold on it, it is what drivers of adapters say after the adapter was pulled, and becomes
/// kDeviceFailed.
SystemError transferFailure(DWORD error);

/// As transferFailure, for a write; one that gives no reason is kNoReason.
SystemError writeFailure(DWORD error);

}  // namespace velmora
