// Time that moves from event to event.
#pragma once

#include <algorithm>
#include <optional>
#include <vector>

#include "base/clock.h"
#include "base/timer.h"
#include "journal.h"

namespace velmora::simulation {

/// The clock of the whole simulated world. Wall clock times follow from it, beginning on 1 January 2026.
class VirtualTime : public Clock {
  public:
    Time now() const { return now_; }
    /// Moves the clock on, to a time that is not behind it.
    void moveTo(Time time) { now_ = std::max(now_, time); }

    /// When the next timer ticks; nothing when none runs.
    std::optional<Time> nextTick() const;
    /// Moves to the next tick and runs it, if there is one.
    void runNextTick();

    DateTime localTime() const override { return dateAt(now_ + kOffset); }
    DateTime universalTime() const override { return dateAt(now_); }
    double secondsSinceMidnight() const override;
    std::chrono::microseconds monotonic() const override { return now_; }

    /// The universal time of an instant of this clock.
    static DateTime dateAt(Time time);

    /// Local time is ahead of universal time by this much.
    static constexpr std::chrono::minutes kOffset{60};

  private:
    friend class VirtualTimer;
    class VirtualTimer* nextTimer() const;
    std::vector<class VirtualTimer*> timers_;
    Time now_{0};
};

/// A timer of the clock, for as long as it lives.
class VirtualTimer : public Timer {
  public:
    explicit VirtualTimer(VirtualTime& time);
    ~VirtualTimer() override;
    VirtualTimer(const VirtualTimer&) = delete;
    VirtualTimer& operator=(const VirtualTimer&) = delete;

    void setInterval(std::chrono::milliseconds interval) override;
    std::chrono::milliseconds interval() const override { return interval_; }
    void setEnabled(bool enabled) override;
    bool enabled() const override { return enabled_; }

  private:
    friend class VirtualTime;
    bool runs() const { return enabled_ && interval_.count() > 0; }

    VirtualTime& time_;
    std::chrono::milliseconds interval_{0};
    Time due_{0};
    bool enabled_ = false;
};

}  // namespace velmora::simulation
