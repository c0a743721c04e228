// The interface that Windows' drivers of serial ports announce.
#pragma once

#include <windows.h>

namespace velmora {

/// GUID_DEVINTERFACE_COMPORT as the system documents it; the header that has it wants those of the driver
/// kit.
inline constexpr GUID kComPortInterface{
    0x86E0D1E0, 0x8089, 0x11D0, {0x9C, 0xE4, 0x08, 0x00, 0x3E, 0x30, 0x1F, 0x73}};

}  // namespace velmora
