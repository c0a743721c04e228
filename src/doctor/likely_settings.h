// With which settings bytes that make no frame were probably sent.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "link/crc.h"
#include "serial/mode_string.h"

namespace velmora {

/// The rates that an Organiser may be set to and those that computers are, in the order in which they are
/// tried.
inline constexpr std::array<std::uint32_t, 12> kTriedRates = {9600,  4800,  2400,  1200,   600, 300,
                                                              19200, 38400, 57600, 115200, 150, 110};

/// The forms beside eight bits without parity that an Organiser may be set to, at some rate.
std::array<LineSettings, 6> triedForms(std::uint32_t rate);

/// The settings with which link requests and their acknowledgements, received with `ours`, give most of what
/// was heard; nothing when none explains enough of it. Eight bits with parity give the same bytes as without,
/// so they are never told by this.
std::optional<LineSettings> likelySettings(const Crc& crc, std::string_view heard, const LineSettings& ours);

}  // namespace velmora
