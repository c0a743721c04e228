// A timer that is cheap to restart.
#pragma once

#include <chrono>

#include "base/clock.h"
#include "base/timer.h"

namespace velmora {

/// A timer made of another one, for a user who stops and starts it with every byte of a conversation. To make
/// and to end a timer of the system is dear on Windows, so stopping only marks it here, and starting anew
/// only notes when it is due; the other timer runs on and finds out at its own tick whether it is time.
///
/// A timer that was stopped for good therefore costs one more wake-up, and none after it.
class LazyTimer : public Timer {
  public:
    /// `ticks` and `clock` must outlive it; nobody else may use `ticks`.
    LazyTimer(Timer& ticks, const Clock& clock);
    ~LazyTimer() override;
    LazyTimer(const LazyTimer&) = delete;
    LazyTimer& operator=(const LazyTimer&) = delete;

    void setInterval(std::chrono::milliseconds interval) override;
    std::chrono::milliseconds interval() const override { return interval_; }
    void setEnabled(bool enabled) override;
    bool enabled() const override { return enabled_; }

  private:
    bool counts() const { return enabled_ && interval_.count() > 0; }
    void countDown();
    void wakeAt(std::chrono::microseconds time);
    void wake();

    Timer& ticks_;
    const Clock& clock_;
    std::chrono::milliseconds interval_{0};
    bool enabled_ = false;
    std::chrono::microseconds due_{0};    // when the next tick is wanted, while it counts
    std::chrono::microseconds wakes_{0};  // when the other timer ticks, while that is enabled
};

}  // namespace velmora
