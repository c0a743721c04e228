// What bytes that make no frame probably are.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "doctor/cause.h"
#include "link/crc.h"
#include "serial/mode_string.h"

namespace velmora {

/// The likely cause of bytes among which there is no good frame, and how sure it is: 0 to 100.
struct Unframed {
    Cause cause = Cause::Noise;
    int confidence = 0;
    std::optional<LineSettings> settings;  ///< with which they were sent, when the cause is that
};

/// Judges at least one byte that was received with the settings `ours`.
Unframed judgeUnframed(const Crc& crc, std::string_view bytes, const LineSettings& ours);

/// Some settings in words: "1200 baud", "9600 baud with 7 bits and even parity".
std::string settingsInWords(const LineSettings& settings);

}  // namespace velmora
