// The way out for replies.
#pragma once

#include <string_view>

#include "link/frames.h"

namespace velmora {

/// Sends frames over the link; the link layer implements it, tests record.
class FrameSender {
  public:
    virtual ~FrameSender() = default;

    /// Sends one frame. A DATA frame is numbered and repeated until it is acknowledged; a DISCON frame (one
    /// reason byte, 0x00 when `data` is empty) takes the link to idle. Returns false when the port refused
    /// the bytes, and when the link was stopped inside the call, where pending events of the user interface
    /// may run.
    virtual bool PLP_Send(FrameType type, std::string_view data) = 0;
};

}  // namespace velmora
