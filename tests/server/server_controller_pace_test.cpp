// How often the poll ticks.
#include "support/controller_fixture.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

class Pace : public test::ControllerTest {
  protected:
    /// How often the port is looked at in a time.
    int looksIn(test::milliseconds span) {
        const int before = port.looks;
        time.advance(span);
        return port.looks - before;
    }
    /// The system tells of what comes, as an event loop does that watches the port.
    void wake() { controller.ComTimer_Tick(); }
};

TEST_F(Pace, AStoppedServerIsNeverWoken) {
    for (const bool watched : {false, true}) {
        portWatched = watched;
        for (const std::int32_t state : {NoPort, Offline}) {
            reach(state);
            displayTimer.setEnabled(false);  // a long text scrolls
            EXPECT_FALSE(time.advanceToNextTick(3'600s)) << state;
        }
        reach(WaitLink);
        controller.pbStartStop_Click();
        EXPECT_FALSE(time.advanceToNextTick(3'600s)) << "stopped again";
    }
}

TEST_F(Pace, APortThatNobodyWatchesIsLookedAtEveryTwentyMilliseconds) {
    for (const std::int32_t state : {WaitLink, Connect, Downld}) {
        reach(state);
        EXPECT_EQ(looksIn(1s), 50) << state;
    }
}

TEST_F(Pace, AWatchedPortIsLookedAtOnceASecond) {
    portWatched = true;
    for (const std::int32_t state : {WaitLink, Connect, Downld}) {
        reach(state);
        EXPECT_EQ(looksIn(10s), 10) << state;
    }
}

TEST_F(Pace, BytesOfAWatchedPortAreReadAtOnce) {
    portWatched = true;
    reach(WaitLink);
    bytesArrive();
    wake();
    EXPECT_EQ(link.calls, std::vector<std::string>{"receive"});
}

TEST_F(Pace, BytesThatWereLeftAreLookedForSoonUntilTheWatchIsOnAgain) {
    portWatched = true;
    reach(WaitLink);
    portWatched = false;  // it rests, since it has woken the poll
    wake();
    EXPECT_EQ(looksIn(200ms), 10);
    portWatched = true;
    tick();
    EXPECT_EQ(looksIn(10s), 10);
}

TEST_F(Pace, AFailedLinkOfAWatchedPortIsOfflineAtOnce) {
    portWatched = true;
    reach(Downld);
    controller.setState(LinkFailed);
    tick();
    EXPECT_EQ(controller.state(), Offline);
}

TEST_F(Pace, BehindAQuestionAWatchedPortIsLookedAtEveryTwentyMilliseconds) {
    portWatched = true;
    reach(Downld);
    int looks = 0;
    box.answer = false;
    box.whileAsking = [&] { looks = looksIn(1s); };
    controller.pbStartStop_Click();
    EXPECT_EQ(looks, 50);
    EXPECT_EQ(looksIn(10s), 10) << "answered: the server goes on";
}

TEST_F(Pace, StartingAgainBeginsTheLooksAgain) {
    reach(WaitLink);
    controller.pbStartStop_Click();
    controller.pbStartStop_Click();
    EXPECT_EQ(looksIn(1s), 50);
}

}  // namespace
}  // namespace velmora
