// Bytes of a serial line, put together to packets with their times.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "capture/capture.h"
#include "link/frame_cutter.h"

namespace velmora {

/// Gathers what is received into runs, so that a packet holds a whole frame however its bytes trickle in. A
/// run ends with a frame, when bytes go the other way, before a comment, after a pause, and when it has
/// become long. What is sent is one packet for each write.
class CaptureRecorder {
  public:
    /// Bytes that follow after a longer silence begin a new packet.
    static constexpr std::chrono::milliseconds kPause{100};
    /// The longest packet of bytes that make no frame.
    static constexpr std::size_t kLongestRun = 4096;

    /// Both must outlive it. Times are the clock's of now, moved on by its monotonic time: they never jump.
    CaptureRecorder(const Clock& clock, CaptureTarget& target);
    /// Hands over the run that is open.
    ~CaptureRecorder();
    CaptureRecorder(const CaptureRecorder&) = delete;
    CaptureRecorder& operator=(const CaptureRecorder&) = delete;

    /// What follows passes over this port. What comes before the first one is dropped: it belongs to none.
    void portOpened(const CapturedPort& port);
    void received(std::string_view bytes);
    void sent(std::string_view bytes);
    /// A comment (UTF-8) on what happens now: a packet without bytes.
    void note(std::string_view text);

  private:
    std::chrono::nanoseconds now() const;
    void add(const CapturedPacket& packet);
    void endRun();

    const Clock& clock_;
    CaptureTarget& target_;
    std::chrono::nanoseconds monotonicToWall_;
    FrameCutter cutter_;  // tells where frames end
    bool portKnown_ = false;
    CapturedPacket run_;
    std::chrono::nanoseconds runEnd_{0};
};

}  // namespace velmora
