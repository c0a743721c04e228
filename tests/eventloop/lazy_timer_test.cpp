#include "eventloop/lazy_timer.h"

#include <gtest/gtest.h>

#include "support/fake_timers.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// The system's timer, which counts how often it is started.
class CountedTimer : public Timer {
  public:
    explicit CountedTimer(Timer& timer) : timer_(timer) {
        timer_.onTick([this] { tick(); });
    }
    void setInterval(std::chrono::milliseconds interval) override { timer_.setInterval(interval); }
    std::chrono::milliseconds interval() const override { return timer_.interval(); }
    void setEnabled(bool enabled) override {
        starts += enabled && !timer_.enabled() ? 1 : 0;
        timer_.setEnabled(enabled);
    }
    bool enabled() const override { return timer_.enabled(); }

    int starts = 0;

  private:
    Timer& timer_;
};

class LazyTimerTest : public testing::Test {
  protected:
    LazyTimerTest() {
        timer.onTick([this] { ++ticks; });
    }
    int ticksIn(std::chrono::milliseconds span) {
        const int before = ticks;
        time.advance(span);
        return ticks - before;
    }

    test::FakeTime time;
    CountedTimer system{time.makeTimer()};
    LazyTimer timer{system, time};
    int ticks = 0;
};

TEST_F(LazyTimerTest, TicksAtEachIntervalWhileItIsEnabled) {
    timer.setInterval(20ms);
    EXPECT_EQ(timer.interval(), 20ms);
    EXPECT_EQ(ticksIn(1s), 0);
    timer.setEnabled(true);
    EXPECT_TRUE(timer.enabled());
    EXPECT_EQ(ticksIn(19ms), 0);
    EXPECT_EQ(ticksIn(1ms), 1);
    EXPECT_EQ(ticksIn(1s), 50);
    timer.setEnabled(false);
    EXPECT_EQ(ticksIn(1s), 0);
}

TEST_F(LazyTimerTest, StartedAnewItCountsDownFromTheStart) {
    timer.setInterval(20ms);
    timer.setEnabled(true);
    time.advance(15ms);
    timer.setEnabled(false);
    timer.setEnabled(true);
    EXPECT_EQ(ticksIn(19ms), 0);
    EXPECT_EQ(ticksIn(1ms), 1);
    EXPECT_EQ(ticksIn(20ms), 1);
}

TEST_F(LazyTimerTest, EnablingAnEnabledTimerLeavesItsCountDown) {
    timer.setInterval(20ms);
    timer.setEnabled(true);
    time.advance(15ms);
    timer.setEnabled(true);
    EXPECT_EQ(ticksIn(5ms), 1);
}

TEST_F(LazyTimerTest, ASetIntervalStartsTheCountDownWhetherShorterOrLonger) {
    timer.setInterval(500ms);
    timer.setEnabled(true);
    time.advance(100ms);
    timer.setInterval(20ms);
    EXPECT_EQ(ticksIn(19ms), 0);
    EXPECT_EQ(ticksIn(1ms), 1);
    timer.setInterval(500ms);
    EXPECT_EQ(ticksIn(499ms), 0);
    EXPECT_EQ(ticksIn(1ms), 1);
}

TEST_F(LazyTimerTest, AnIntervalOfNothingNeverTicks) {
    timer.setInterval(20ms);
    timer.setEnabled(true);
    timer.setInterval(0ms);
    EXPECT_EQ(ticksIn(1s), 0);
    EXPECT_TRUE(timer.enabled());
    timer.setInterval(20ms);
    EXPECT_EQ(ticksIn(20ms), 1);
}

TEST_F(LazyTimerTest, StoppingAndStartingItLeavesTheSystemsTimerAlone) {
    timer.setInterval(20ms);
    timer.setEnabled(true);
    for (int byte = 0; byte < 1'000; ++byte) {
        timer.setEnabled(false);
        timer.setEnabled(true);
        time.advance(1ms);
    }
    EXPECT_EQ(ticks, 0);
    EXPECT_LE(system.starts, 60) << "about once an interval";
}

TEST_F(LazyTimerTest, OnceItIsStoppedTheSystemsTimerRunsOutAndRests) {
    timer.setInterval(20ms);
    timer.setEnabled(true);
    time.advance(5ms);
    timer.setEnabled(false);
    EXPECT_TRUE(system.enabled());
    time.advance(15ms);
    EXPECT_FALSE(system.enabled());
    EXPECT_FALSE(time.advanceToNextTick(1h));
}

TEST_F(LazyTimerTest, MayBeStoppedAndStartedInItsOwnTick) {
    timer.onTick([this] {
        ++ticks;
        timer.setEnabled(false);
        timer.setInterval(50ms);
        timer.setEnabled(true);
    });
    timer.setInterval(20ms);
    timer.setEnabled(true);
    EXPECT_EQ(ticksIn(20ms), 1);
    EXPECT_EQ(ticksIn(49ms), 0);
    EXPECT_EQ(ticksIn(1ms), 1);
}

TEST_F(LazyTimerTest, ItsTicksEndWithIt) {
    {
        LazyTimer other(system, time);
        other.onTick([this] { ++ticks; });
        other.setInterval(20ms);
        other.setEnabled(true);
    }
    EXPECT_EQ(ticksIn(1s), 0);
}

}  // namespace
}  // namespace velmora
