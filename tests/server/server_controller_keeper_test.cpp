// The controller with somebody who waits for its port.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/controller_fixture.h"
#include "support/scripted_adapters.h"
#include "support/scripted_sleep.h"

namespace velmora {
namespace {

using test::usbDevice;

using std::chrono::seconds;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;
using ::testing::Not;

class ControllerKeeperTest : public test::ControllerTest {
  protected:
    ControllerKeeperTest() {
        port.number = 5;
        adapters.plug(usbDevice(0), "A");
        controller.attachPortKeeper(keeper);
        adapters.onChange([this] { keeper.adaptersChanged(); });
        controller.attachSleepWatch(watch);
        reach(Offline);
    }
    void pull() {
        adapters.pull(usbDevice(0));
        portBreaks();
        tick();
    }
    void plug() {
        port.countError.reset();
        adapters.plug(usbDevice(0), "A");
        time.advance(seconds(2));
    }

    PortNames names;
    test::ScriptedAdapters adapters{names};
    WaitFor waitFor = WaitFor::LostPort;
    PortKeeper keeper{{port,
                       names,
                       options,
                       [this] { return adapters.list(); },
                       [this](const std::string& device) { return adapters.facts(device); },
                       {}},
                      time.makeTimer(),
                      [this] { return waitFor; },
                      [this] { return controller.restart(); }};
    test::ScriptedSleep sleep;
    SleepWatch watch{sleep,
                     time.makeTimer(),
                     {[this] { controller.computerSleeps(); }, [this] { controller.computerWakes(); }}};
};

TEST_F(ControllerKeeperTest, TheServerStartsAgainAndItsWarningGoes) {
    reach(WaitLink);
    pull();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_TRUE(view.messages.warning);
    plug();
    EXPECT_EQ(controller.state(), WaitLink);
    EXPECT_FALSE(view.messages.warning);
}

TEST_F(ControllerKeeperTest, WhileItWaitsTheButtonStopsIt) {
    reach(WaitLink);
    pull();
    EXPECT_EQ(view.captions[MainButton::StartStop], "Stop");
    EXPECT_EQ(view.line2, "Waiting for port");
    controller.pbStartStop_Click();
    EXPECT_NE(view.line2, "Waiting for port");
    EXPECT_EQ(view.captions[MainButton::StartStop], "Start");
    EXPECT_EQ(controller.state(), Offline);
    plug();
    EXPECT_EQ(controller.state(), Offline);
    controller.pbStartStop_Click();
    EXPECT_EQ(controller.state(), WaitLink);
}

TEST_F(ControllerKeeperTest, WhoDoesNotReconnectIsLeftWithStart) {
    waitFor = WaitFor::Nothing;
    reach(WaitLink);
    pull();
    EXPECT_EQ(view.captions[MainButton::StartStop], "Start");
    plug();
    EXPECT_EQ(controller.state(), Offline);
}

TEST_F(ControllerKeeperTest, ATransferThatWasLostIsNotStartedUnderTheQuestionAboutIt) {
    reach(Downld);
    box.whileAsking = [this] {
        adapters.plug(usbDevice(0), "A");
        EXPECT_FALSE(controller.restart());
        EXPECT_EQ(controller.state(), Downld);
        port.countError.reset();
    };
    box.answer = false;
    pull();
    tick();
    EXPECT_EQ(controller.state(), Offline);
    time.advance(seconds(2));
    EXPECT_EQ(controller.state(), WaitLink);
}

TEST_F(ControllerKeeperTest, AnAdapterThatComesWhileTheUserIsAtSetupIsTakenAfterwards) {
    reach(WaitLink);
    pull();
    controller.pbSetup_Click([this] {
        plug();
        EXPECT_EQ(controller.state(), Offline);
    });
    EXPECT_TRUE(keeper.waiting());
    time.advance(seconds(2));
    EXPECT_EQ(controller.state(), WaitLink);
}

TEST_F(ControllerKeeperTest, AnotherPortThatIsChosenInSetupEndsTheWait) {
    reach(WaitLink);
    pull();
    controller.pbSetup_Click([this] { port.number = 7; });
    EXPECT_FALSE(keeper.waiting());
    EXPECT_EQ(view.captions[MainButton::StartStop], "Start");
}

TEST_F(ControllerKeeperTest, ThePcsSleepStopsTheServerWithoutAQuestion) {
    reach(Downld);
    sleep.sleeps();
    EXPECT_EQ(controller.state(), Offline);
    EXPECT_EQ(view.messages.lines[1].text, "COM5: The computer goes to sleep.");
    EXPECT_EQ(view.messages.lines[2].text, "The transfer is lost.");
    EXPECT_TRUE(box.asked.empty());
    time.advance(seconds(5));
    EXPECT_EQ(controller.state(), Offline);
    sleep.wakes();
    time.advance(seconds(1));
    EXPECT_EQ(controller.state(), WaitLink);
}

TEST_F(ControllerKeeperTest, AServerThatIsStoppedSleepsAsItIs) {
    sleep.sleeps();
    EXPECT_FALSE(view.messages.warning);
    EXPECT_FALSE(keeper.waiting());
    sleep.wakes();
    time.advance(seconds(5));
    EXPECT_EQ(controller.state(), Offline);
}

TEST_F(ControllerKeeperTest, WithoutAWaitTheServerStaysStoppedAfterTheComputersSleep) {
    waitFor = WaitFor::Nothing;
    reach(WaitLink);
    sleep.sleeps();
    sleep.wakes();
    time.advance(seconds(60));
    EXPECT_EQ(controller.state(), Offline);
}

TEST_F(ControllerKeeperTest, TheComputerIsKeptAwakeFromAFilesOpeningToItsEnd) {
    reach(Connect);
    EXPECT_FALSE(sleep.awake);
    for (const std::int32_t state : {FileAccess, Upload, Downld, SendDir, SendMenu, ServiceBusy}) {
        controller.setState(state);
        EXPECT_TRUE(sleep.awake) << state;
    }
    EXPECT_EQ(sleep.changes, 1);
    controller.setState(WaitLink);
    EXPECT_FALSE(sleep.awake);
}

TEST_F(ControllerKeeperTest, AFileThatBreaksOffKeepsTheComputerAwakeNoLonger) {
    reach(Downld);
    EXPECT_TRUE(sleep.awake);
    pull();
    tick();
    EXPECT_FALSE(sleep.awake);
}

TEST_F(ControllerKeeperTest, AClosedProgramKeepsTheComputerAwakeNoLonger) {
    reach(Downld);
    controller.queryUnload(CloseReason::Terminated);
    EXPECT_FALSE(sleep.awake);
}

TEST_F(ControllerKeeperTest, BytesThatComeKeepTheComputerAwake) {
    reach(Downld);
    for (int minute = 0; minute < 10; ++minute) {
        bytesArrive();
        time.advance(SleepWatch::kSilence);
        EXPECT_TRUE(sleep.awake);
    }
    port.input.clear();
    time.advance(SleepWatch::kSilence * 2);
    EXPECT_FALSE(sleep.awake);
}

TEST_F(ControllerKeeperTest, AClosedProgramWaitsForNothing) {
    reach(WaitLink);
    pull();
    controller.queryUnload(CloseReason::Terminated);
    EXPECT_FALSE(keeper.waiting());
}

TEST_F(ControllerKeeperTest, AnAdapterThatWasChosenInSetupIsSaved) {
    controller.setClosingActions({&store, {}, {}});
    controller.pbSetup_Click([this] {
        port.number = 6;
        options.PortIdentity = "0403:6001:B";
    });
    controller.queryUnload(CloseReason::User);
    EXPECT_THAT(store.entries, IsSupersetOf({"[Settings] Port=6", "[Settings] PortIdentity=0403:6001:B"}));
}

TEST_F(ControllerKeeperTest, WithoutAChoiceNoIdentityIsWritten) {
    controller.setClosingActions({&store, {}, {}});
    controller.queryUnload(CloseReason::User);
    EXPECT_THAT(store.entries, Not(Contains(HasSubstr("PortIdentity"))));
}

}  // namespace
}  // namespace velmora
