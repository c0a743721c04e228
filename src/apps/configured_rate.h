// The rate that the server is set to, for programs that examine its line.
#pragma once

#include <cstdint>
#include <iosfwd>

namespace velmora {

/// Bits per second, as the user's Velmora.ini has it; nothing there, or none: the default. A file that would
/// fail the server's start is told on `errors`, and counts as none.
std::uint32_t configuredRate(std::ostream& errors);

}  // namespace velmora
