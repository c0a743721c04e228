#include "server/sleep_watch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "link/server_state.h"
#include "support/fake_timers.h"
#include "support/scripted_sleep.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;

class SleepWatchTest : public testing::Test {
  protected:
    void silence(int spans) { time.advance(SleepWatch::kSilence * spans); }

    test::FakeTime time;
    test::ScriptedSleep sleep;
    std::vector<std::string> done;
    test::FakeTime::FakeTimer& timer = time.makeTimer();
    std::optional<SleepWatch> watch{
        std::in_place, sleep, timer,
        SleepActions{[this] { done.emplace_back("pull"); }, [this] { done.emplace_back("plug"); }}};
};

TEST_F(SleepWatchTest, SleepIsAPullAndWakingIsAPlug) {
    sleep.sleeps();
    sleep.wakes();
    EXPECT_THAT(done, ElementsAre("pull", "plug"));
}

TEST_F(SleepWatchTest, NoStateWithoutAFileKeepsTheComputerAwake) {
    for (const std::int32_t state :
         {Welcome, NoPort, Shutdown, OnExit, Offline, WaitLink, Connect, LinkFailed, Error}) {
        watch->serverIs(state);
        watch->heard();
        EXPECT_FALSE(sleep.awake) << state;
    }
    EXPECT_FALSE(timer.enabled());
}

TEST_F(SleepWatchTest, AnOpenFileKeepsItAwakeOnceAndItsEndLetsItGoOnce) {
    watch->serverIs(Upload);
    watch->serverIs(FileAccess);
    watch->heard();
    EXPECT_TRUE(sleep.awake);
    watch->serverIs(WaitLink);
    EXPECT_FALSE(sleep.awake);
    EXPECT_EQ(sleep.changes, 2);
    EXPECT_FALSE(timer.enabled());
}

TEST_F(SleepWatchTest, AnOrganiserThatIsSilentWithAFileOpenLetsTheComputerSleep) {
    watch->serverIs(Downld);
    watch->heard();
    silence(1);
    EXPECT_TRUE(sleep.awake);
    silence(1);
    EXPECT_FALSE(sleep.awake);
    EXPECT_FALSE(timer.enabled()) << "the program would wake up for nothing";
}

TEST_F(SleepWatchTest, AnOrganiserThatIsHeardAgainKeepsItAwakeAgain) {
    watch->serverIs(Downld);
    silence(2);
    EXPECT_FALSE(sleep.awake);
    watch->heard();
    EXPECT_TRUE(sleep.awake);
    silence(1);
    EXPECT_TRUE(sleep.awake);
}

TEST_F(SleepWatchTest, WhoIsGoneNeitherHearsNorKeepsAwake) {
    watch->serverIs(Downld);
    watch.reset();
    EXPECT_FALSE(sleep.awake);
    sleep.sleeps();
    EXPECT_TRUE(done.empty());
}

}  // namespace
}  // namespace velmora
