// Names of temporary files, by which those are known that a program left behind when it was killed.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

/// ".velmora-", six letters or digits, ".tmp".
constexpr std::string_view kTemporaryPrefix = ".velmora-";
constexpr std::size_t kTemporaryLetters = 6;
constexpr std::string_view kTemporarySuffix = ".tmp";

/// The name for a number, of which the last 24 bits count.
std::string temporaryName(std::uint32_t number);

/// Whether a name, without its folder, is one of a temporary file.
bool isTemporaryName(std::string_view name);

}  // namespace velmora
