#include <unistd.h>

#include <array>
#include <utility>

#include "base/timer.h"
#include "event_loop_fixture.h"
#include "eventloop/port_watcher.h"
#include "eventloop/qt_timer.h"
#include "support/fake_timers.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// A pipe in place of a port.
class PortWatcherTest : public EventLoopFixture {
  protected:
    PortWatcherTest() {
        if (::pipe(ends_.data()) != 0) {
            throw std::runtime_error("no pipe");
        }
    }
    ~PortWatcherTest() override {
        ::close(ends_[0]);
        hangUp();
    }
    void hangUp() { ::close(std::exchange(ends_[1], -1)); }
    void bytesCome() const { EXPECT_EQ(::write(ends_[1], "x", 1), 1); }
    /// Ends the loop after everything that is due.
    void endSoon() {
        last_.onTick([] { QCoreApplication::exit(); });
        last_.setInterval(20ms);
        last_.setEnabled(true);
    }
    int port() const { return ends_[0]; }
    test::FakeTime clock;
    std::function<std::chrono::nanoseconds()> soonest = [] { return 0ns; };

  private:
    std::array<int, 2> ends_{};
    QtTimer last_;
};

TEST_F(PortWatcherTest, BytesThatComeWakeItOnceForEachLook) {
    int woken = 0;
    PortWatcher watcher([&] { ++woken; }, soonest, clock);
    watcher.portOpened(port());
    run([&] {
        bytesCome();
        endSoon();
    });
    EXPECT_EQ(woken, 1) << "the bytes were left where they are";
    run([&] {
        watcher.setActive(true);
        endSoon();
    });
    EXPECT_EQ(woken, 2);
    watcher.portClosing(port());
}

TEST_F(PortWatcherTest, RestsWithThePoll) {
    PortWatcher watcher([] { FAIL() << "the poll is off"; }, soonest, clock);
    WatchedTimer<QtTimer> poll(watcher);
    poll.setEnabled(true);
    poll.setEnabled(false);
    watcher.portOpened(port());
    run([&] {
        bytesCome();
        endSoon();
    });
    watcher.portClosing(port());
}

TEST_F(PortWatcherTest, WatchesAnOpenPortUntilItHasWokenThePoll) {
    PortWatcher watcher([] { QCoreApplication::exit(); }, soonest, clock);
    EXPECT_FALSE(watcher.watches()) << "no port";
    watcher.portOpened(port());
    EXPECT_TRUE(watcher.watches());
    run([&] { bytesCome(); });
    EXPECT_FALSE(watcher.watches()) << "the bytes were left where they are";
    watcher.setActive(true);
    EXPECT_TRUE(watcher.watches());
    watcher.portClosing(port());
    EXPECT_FALSE(watcher.watches());
}

TEST_F(PortWatcherTest, ATickOfThePollSwitchesTheWatchOnAgain) {
    int woken = 0;
    PortWatcher watcher(
        [&] {
            if (++woken == 3) {
                QCoreApplication::exit();
            }
        },
        soonest, clock);
    WatchedTimer<QtTimer> poll(watcher);
    int ticks = 0;
    poll.onTick([&] {
        ++ticks;
        EXPECT_EQ(woken, ticks) << "once for each look";
    });
    poll.setInterval(5ms);
    poll.setEnabled(true);
    watcher.portOpened(port());
    run([&] { bytesCome(); });
    EXPECT_EQ(woken, 3);
    watcher.portClosing(port());
}

TEST_F(PortWatcherTest, AHangUpWakesThePoll) {
    PortWatcher watcher([] { QCoreApplication::exit(); }, soonest, clock);
    watcher.portOpened(port());
    run([&] { hangUp(); });
    watcher.portClosing(port());
}

TEST_F(PortWatcherTest, APortMayBeClosedFromInsideItsOwnEvent) {
    int woken = 0;
    PortWatcher watcher(
        [&] {
            ++woken;
            watcher.portClosing(port());
            watcher.setActive(true);
        },
        soonest, clock);
    watcher.portOpened(port());
    run([&] {
        bytesCome();
        endSoon();
    });
    EXPECT_EQ(woken, 1);
}

}  // namespace
}  // namespace velmora
