// How much of a recording is kept.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace velmora {

/// The newest part of a recording; without either all of it.
struct CaptureLimit {
    std::optional<std::uint64_t> bytes;        ///< on the disk
    std::optional<std::chrono::seconds> time;  ///< back from now

    friend bool operator==(const CaptureLimit&, const CaptureLimit&) = default;
};

/// Reads "500K", "20M", "1G" (of 1024 bytes each), "90s", "10min" or "2h": 1 to 1,000,000 of them, with the
/// unit as it stands here. Nothing for anything else.
std::optional<CaptureLimit> parseCaptureLimit(std::string_view text);

}  // namespace velmora
