#include "eventloop/high_resolution_timer_win32.h"

#include "event_loop_fixture.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// Once with each source of ticks.
class HighResolutionTimerTest : public EventLoopFixture,
                                public testing::WithParamInterface<HighResolutionTimer::Source> {
  protected:
    /// The time that so many ticks take.
    std::chrono::steady_clock::duration ticks(HighResolutionTimer& timer, int count) {
        int left = count;
        timer.onTick([&left] {
            if (--left == 0) {
                QCoreApplication::exit();
            }
        });
        const auto begin = std::chrono::steady_clock::now();
        run([&timer] { timer.setEnabled(true); });
        timer.setEnabled(false);
        return std::chrono::steady_clock::now() - begin;
    }
};

TEST_P(HighResolutionTimerTest, TicksAtItsInterval) {
    HighResolutionTimer timer(GetParam());
    timer.setInterval(1ms);
    EXPECT_GE(ticks(timer, 20), 19ms);
    timer.setInterval(5ms);
    EXPECT_GE(ticks(timer, 4), 15ms);
}

TEST_P(HighResolutionTimerTest, TicksNeitherDisabledNorWithoutAnInterval) {
    HighResolutionTimer timer(GetParam());
    timer.onTick([] { ADD_FAILURE() << "a tick"; });
    timer.setEnabled(true);
    HighResolutionTimer other(GetParam());
    other.setInterval(1ms);
    other.onTick([] { ADD_FAILURE() << "a tick"; });
    other.setEnabled(true);
    other.setEnabled(false);
    HighResolutionTimer last(GetParam());
    last.setInterval(5ms);
    ticks(last, 4);
}

TEST_P(HighResolutionTimerTest, MayBeDisabledInItsOwnTick) {
    HighResolutionTimer timer(GetParam());
    timer.setInterval(1ms);
    int count = 0;
    timer.onTick([&] {
        ++count;
        timer.setEnabled(false);
    });
    timer.setEnabled(true);
    HighResolutionTimer last(GetParam());
    last.setInterval(5ms);
    ticks(last, 4);
    EXPECT_EQ(count, 1);
}

TEST_P(HighResolutionTimerTest, TicksThatTakeTooLongKeepNoEventWaiting) {
    HighResolutionTimer timer(GetParam());
    timer.setInterval(1ms);
    timer.onTick([] {
        const auto begin = std::chrono::steady_clock::now();
        while (std::chrono::steady_clock::now() - begin < 3ms) {
        }
    });
    QTimer event;
    QObject::connect(&event, &QTimer::timeout, &event, [] { QCoreApplication::exit(); });
    run([&] {
        timer.setEnabled(true);
        event.start(20ms);
    });
    timer.setEnabled(false);
}

INSTANTIATE_TEST_SUITE_P(Sources, HighResolutionTimerTest,
                         testing::Values(HighResolutionTimer::Source::Best,
                                         HighResolutionTimer::Source::SystemClock));

}  // namespace
}  // namespace velmora
