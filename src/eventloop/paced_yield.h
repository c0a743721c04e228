// Letting the event loop run inside a long call, not more often than a user notices.
#pragma once

#include <chrono>
#include <optional>

#include "base/clock.h"
#include "base/event_yield.h"

namespace velmora {

/// Passes a call on when the event loop has not run for twenty milliseconds. A conversation yields several
/// times for each byte, a look at the event loop is some ten calls of the system on Windows, and the loop
/// itself runs between two bytes anyway.
class PacedYield : public EventYield {
  public:
    static constexpr std::chrono::milliseconds kInterval{20};

    /// Both must outlive it.
    PacedYield(EventYield& yield, const Clock& clock) : yield_(yield), clock_(clock) {}

    void processEvents() override {
        if (!last_ || clock_.monotonic() - *last_ >= kInterval) {
            loopRuns();
            yield_.processEvents();
        }
    }
    /// The event loop runs, and has called whatever yields next.
    void loopRuns() { last_ = clock_.monotonic(); }

  private:
    EventYield& yield_;
    const Clock& clock_;
    std::optional<std::chrono::microseconds> last_;
};

}  // namespace velmora
