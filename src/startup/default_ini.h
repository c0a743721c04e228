// The configuration file that a first start writes.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

/// A configuration file below this many bytes is taken for a broken one and written afresh.
constexpr std::uint64_t kSmallestIni = 100;

/// The whole default file, every line ended by CR LF: all settings with a comment each, and all texts. Its
/// texts differ in places from the built-in ones; where there is a file, it wins.
std::string defaultIni();

}  // namespace velmora
