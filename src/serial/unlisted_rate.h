// Rates for which the terminal settings of POSIX have no name.
#pragma once

#include <cstdint>
#include <optional>

namespace velmora {

/// Gives an open terminal a rate in bits a second, both ways, that need not be one of the named ones. False
/// when the device takes neither it nor one so near that bytes still arrive, or where the system has no such
/// call.
bool setUnlistedRate(int descriptor, std::uint32_t baud);

/// The rate of an open terminal that has one without a name; nothing for all others.
std::optional<std::uint32_t> unlistedRate(int descriptor);

}  // namespace velmora
