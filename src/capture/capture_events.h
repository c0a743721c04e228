// What a recording shows: frames, repeats, bytes that make none, comments.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "capture/capture.h"
#include "link/frames.h"

namespace velmora {

/// One thing that happened on a recorded line.
struct CaptureEvent {
    enum class Kind : std::uint8_t {
        Port,     ///< a port was opened: `port`
        Frame,    ///< `bytes` are a frame, header to check
        Stray,    ///< `stray` bytes belong to no frame
        Comment,  ///< `bytes` are a comment, UTF-8
    };

    Kind kind = Kind::Frame;
    std::size_t port = 0;
    std::chrono::nanoseconds time{0};  ///< of the packet that made it whole, since 1970 UTC
    CaptureDirection direction = CaptureDirection::None;
    std::string bytes;
    std::optional<ParsedFrame> parsed;  ///< of a frame; nothing when its check is wrong
    bool repeated = false;              ///< of a DATA frame: the same went the same way last
    std::size_t stray = 0;
};

/// The events of a recording in their order. Frames are put together from both directions' bytes, however
/// they are spread over packets; what is left of a frame at the end of a port is stray.
std::vector<CaptureEvent> eventsOf(const Capture& capture);

}  // namespace velmora
