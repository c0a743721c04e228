// A recording in numbers.
#pragma once

#include <chrono>
#include <cstddef>
#include <vector>

#include "capture/capture.h"
#include "capture/capture_events.h"

namespace velmora {

/// Times from a DATA frame to its acknowledgement.
struct RoundTrips {
    std::size_t count = 0;
    std::chrono::nanoseconds shortest{0};
    std::chrono::nanoseconds longest{0};
    std::chrono::duration<double, std::nano> total{0};

    /// Counts a time; one below zero, which only a clock that was set back gives, as zero.
    void add(std::chrono::nanoseconds time);
    /// Zero when there was none.
    std::chrono::nanoseconds mean() const;
};

/// What went one way.
struct WayStatistics {
    std::size_t bytes = 0;
    std::size_t frames = 0;
    std::size_t repeats = 0;    ///< DATA frames that went before
    std::size_t badChecks = 0;  ///< among the frames
    std::size_t stray = 0;      ///< bytes that belong to no frame
    /// How long its bytes kept the line busy; zero where the rate is not known.
    std::chrono::nanoseconds busy{0};
    /// Of its DATA frames. Of one that was repeated, nobody knows which copy was acknowledged; it is left
    /// out.
    RoundTrips roundTrips;
};

struct CaptureStatistics {
    std::chrono::nanoseconds length{0};  ///< from the first packet to the last
    WayStatistics received;
    WayStatistics sent;
};

/// `events`: those of the capture.
CaptureStatistics statisticsOf(const Capture& capture, const std::vector<CaptureEvent>& events);

/// What `part` is of `whole` in percent, rounded down, 100 at most; 0 when there is no whole.
int percentOf(std::chrono::nanoseconds part, std::chrono::nanoseconds whole);

}  // namespace velmora
