// Time that only moves when a test says so.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "base/clock.h"
#include "base/timer.h"

namespace velmora::test {

using std::chrono::microseconds;
using std::chrono::milliseconds;

/// A clock with any number of timers, all driven by advance().
class FakeTime : public Clock {
  public:
    class FakeTimer : public Timer {
      public:
        explicit FakeTimer(FakeTime& time) : time_(time) {}

        void setInterval(milliseconds interval) override {
            interval_ = interval;
            due_ = time_.now_ + interval_;
        }
        milliseconds interval() const override { return interval_; }
        void setEnabled(bool enabled) override {
            if (enabled && !enabled_) {
                due_ = time_.now_ + interval_;
            }
            enabled_ = enabled;
        }
        bool enabled() const override { return enabled_; }
        /// Time left until the next tick.
        milliseconds remaining() const { return std::chrono::duration_cast<milliseconds>(due_ - time_.now_); }

      private:
        friend class FakeTime;
        FakeTime& time_;
        milliseconds interval_{0};
        microseconds due_{0};
        bool enabled_ = false;
    };

    /// A new timer; the clock owns it.
    FakeTimer& makeTimer() { return *timers_.emplace_back(std::make_unique<FakeTimer>(*this)); }

    /// Moves the clock on and runs every tick that falls due on the way, in order.
    void advance(milliseconds span) { advanceTo(now_ + span); }

    /// Moves the clock to the next tick (at most `limit` away) and runs it; false if none was due by then.
    bool advanceToNextTick(milliseconds limit) {
        const microseconds last = now_ + limit;
        FakeTimer* next = nextTimer();
        if (next == nullptr || next->due_ > last) {
            now_ = last;
            return false;
        }
        fire(*next);
        return true;
    }

    DateTime localTime() const override { return local; }
    DateTime universalTime() const override { return universal; }
    double secondsSinceMidnight() const override {
        return midnightOffset + std::chrono::duration<double>(now_).count();
    }
    microseconds monotonic() const override { return now_; }

    DateTime local{2026, 3, 28, 14, 5, 9};
    DateTime universal{2026, 3, 28, 13, 5, 9};
    double midnightOffset = 40'000;

  private:
    void advanceTo(microseconds last) {
        while (FakeTimer* next = nextTimer()) {
            if (next->due_ > last) {
                break;
            }
            fire(*next);
        }
        now_ = last;
    }
    FakeTimer* nextTimer() const {
        FakeTimer* next = nullptr;
        for (const auto& timer : timers_) {
            if (timer->enabled_ && timer->interval_.count() > 0 &&
                (next == nullptr || timer->due_ < next->due_)) {
                next = timer.get();
            }
        }
        return next;
    }
    void fire(FakeTimer& timer) {
        now_ = std::max(now_, timer.due_);
        timer.due_ = now_ + timer.interval_;
        timer.tick();
    }

    microseconds now_{0};
    std::vector<std::unique_ptr<FakeTimer>> timers_;
};

}  // namespace velmora::test
