// The handheld's side of a recorded conversation, played again.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

#include "capture/capture.h"
#include "organiser/organiser_line.h"
#include "organiser/organiser_link.h"

namespace velmora {

/// Where a server began to answer otherwise than when it was recorded.
struct ReplayParting {
    std::size_t frame = 0;             ///< which frame of the server, from 1; repeats are not counted
    std::chrono::nanoseconds time{0};  ///< of that frame, since the capture's first packet
    std::string then;                  ///< the frame on the wire, as recorded
    std::optional<std::string> now;    ///< the frame that came; nothing when none did
};

struct ReplayResult {
    std::size_t agreed = 0;  ///< frames of the server that came as recorded, repeats not counted
    std::optional<ReplayParting> parting;
};

/// How long a frame of the server is waited for. It may be the end of a row of resends, half a second apart.
constexpr std::chrono::seconds kReplayLimit{10};

/// Sends what the Organiser sent, byte for byte, damaged frames too, and holds each frame of the server
/// against the recorded one before it goes on; ends at the first that differs. Times do not count: neither
/// side's pauses, nor how often the server repeats a frame by time; a repeat that something sent has called
/// for is waited for. Of the answer of a clock only the length counts. Then drops the link, unless the
/// recording did. `trace` may be empty. Throws LineError when the line is gone.
ReplayResult replay(const Capture& capture, OrganiserLine& line, const OrganiserLink::FrameTrace& trace = {});

}  // namespace velmora
