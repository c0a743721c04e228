#include "eventloop/qt_timer.h"

#include "event_loop_fixture.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using QtTimerTest = EventLoopFixture;

TEST_F(QtTimerTest, TicksAgainAndAgainWhileItIsEnabled) {
    QtTimer timer;
    int ticks = 0;
    timer.onTick([&] {
        if (++ticks == 3) {
            QCoreApplication::exit();
        }
    });
    timer.setInterval(1ms);
    EXPECT_EQ(timer.interval(), 1ms);
    run([&timer] { timer.setEnabled(true); });
    EXPECT_EQ(ticks, 3);
}

TEST_F(QtTimerTest, DoesNotTickWhenItIsSwitchedOffOrHasNoInterval) {
    QtTimer off;
    off.onTick([] { FAIL() << "is switched off"; });
    off.setInterval(1ms);
    off.setEnabled(true);
    off.setEnabled(false);
    QtTimer without;
    without.onTick([] { FAIL() << "has no interval"; });
    without.setEnabled(true);
    // A later timer ticks after earlier ones of a shorter interval.
    QtTimer last;
    last.onTick([] { QCoreApplication::exit(); });
    last.setInterval(20ms);
    run([&last] { last.setEnabled(true); });
    EXPECT_TRUE(without.enabled());
}

}  // namespace
}  // namespace velmora
