// Recordings as blocks of a pcapng file.
#pragma once

#include <cstddef>
#include <string>

#include "capture/capture.h"

namespace velmora {

/// The block that begins a file, with the program's name in it. `masked`: as the capture has it.
std::string pcapngSection(bool masked);
/// The block of a port, with link type USER0 and times in nanoseconds. The first one of a section is port 0.
std::string pcapngPort(const CapturedPort& port);
/// The block of a packet of the section's port number `port`.
std::string pcapngPacket(std::size_t port, const CapturedPacket& packet);
/// A whole file.
std::string pcapngFile(const Capture& capture);

}  // namespace velmora
