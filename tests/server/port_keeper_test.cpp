// What the server does while adapters come and go.
#include "server/port_keeper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_timers.h"
#include "support/scripted_adapters.h"
#include "support/scripted_port.h"

namespace velmora {
namespace {

using test::usbDevice;

using std::chrono::milliseconds;
using std::chrono::seconds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A server that is no more than its port: it runs once the device that the port's number stands for is
/// there and may be opened.
class PortKeeperTest : public testing::Test {
  protected:
    PortKeeperTest() {
        port.number = 5;  // usbDevice(0)
        adapters.onChange([this] { keeper.adaptersChanged(); });
    }
    std::string device() const { return names.device(port.number).value_or("none"); }
    bool open() {
        ++starts;
        const DeviceFacts facts = adapters.facts(device());
        running = facts.exists && facts.mayOpen && !busy;
        if (running) {
            keeper.started();
        }
        return running;
    }
    /// The user starts the server.
    void start() {
        keeper.beforeStart();
        if (!open()) {
            keeper.startFailed();
        }
        starts = 0;
    }
    /// The port fails while the server runs.
    void lose(bool gone = false) {
        running = false;
        keeper.lost(gone);
    }
    /// The computer is about to sleep while the server runs.
    void sleep() {
        keeper.computerSleeps();
        lose(true);
    }
    void pullFromServer(const std::string& pulled) {
        adapters.pull(pulled);
        lose();
    }

    test::FakeTime time;
    PortNames names;
    test::ScriptedPort port;
    ServerOptions options;
    test::ScriptedAdapters adapters{names};
    std::vector<std::string> lines;
    WaitFor waitFor = WaitFor::LostPort;
    bool running = false;
    bool busy = false;
    int starts = 0;
    PortKeeper keeper{{port, names, options, [this] { return adapters.list(); },
                       [this](const std::string& path) { return adapters.facts(path); },
                       [this](const std::string& line) { lines.push_back(line); }},
                      time.makeTimer(),
                      [this] { return waitFor; },
                      [this] { return open(); }};
};

TEST_F(PortKeeperTest, TheSameAdapterStartsTheServerAgain) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    EXPECT_TRUE(keeper.waiting());
    time.advance(seconds(60));
    EXPECT_EQ(starts, 0);
    adapters.plug(usbDevice(0), "A");
    time.advance(Reconnection::kSettle);
    EXPECT_TRUE(running);
    EXPECT_FALSE(keeper.waiting());
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(PortKeeperTest, ItIsFollowedToAnotherNumberAndThatIsSaidInOneLine) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    adapters.plug(usbDevice(1), "A");
    time.advance(seconds(1));
    EXPECT_TRUE(running);
    EXPECT_EQ(port.number, 6);
    EXPECT_THAT(lines, ElementsAre("usb:0403:6001:A is COM6 now; it was COM5."));
}

TEST_F(PortKeeperTest, TheNameThatAnotherDeviceHasGotIsNotTaken) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    adapters.plug(usbDevice(0), "B", "socket-2");
    time.advance(seconds(60));
    EXPECT_EQ(starts, 0);
    adapters.plug(usbDevice(1), "A");
    time.advance(seconds(1));
    EXPECT_TRUE(running);
    EXPECT_EQ(device(), usbDevice(1));
}

TEST_F(PortKeeperTest, TwoAdaptersThatWereSwappedAreToldApart) {
    adapters.plug(usbDevice(0), "A");
    adapters.plug(usbDevice(1), "B", "socket-2");
    start();
    adapters.pull(usbDevice(1));
    pullFromServer(usbDevice(0));
    adapters.plug(usbDevice(0), "B");
    adapters.plug(usbDevice(1), "A", "socket-2");
    time.advance(seconds(1));
    EXPECT_TRUE(running);
    EXPECT_EQ(device(), usbDevice(1));
}

TEST_F(PortKeeperTest, ManyQuickPlugsLeadToOneStart) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    const int before = adapters.listings;
    for (int plug = 0; plug < 100; ++plug) {
        adapters.plug(usbDevice(0), "A");
        time.advance(milliseconds(1));
        adapters.pull(usbDevice(0));
    }
    EXPECT_LE(adapters.listings - before, 2);
    adapters.plug(usbDevice(0), "A");
    time.advance(seconds(5));
    EXPECT_TRUE(running);
    EXPECT_EQ(starts, 1);
}

TEST_F(PortKeeperTest, EventsThatNeverEndDoNotPutTheStartOff) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    adapters.plug(usbDevice(0), "A");
    for (int i = 0; i < 30 && !running; ++i) {
        adapters.event();
        time.advance(milliseconds(10));
    }
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, AnAdapterWithoutASerialNumberIsKnownByItsSocket) {
    adapters.plug(usbDevice(0), "", "socket-1");
    start();
    pullFromServer(usbDevice(0));
    adapters.plug(usbDevice(0), "", "socket-2");
    time.advance(seconds(60));
    EXPECT_EQ(starts, 0);
    adapters.plug(usbDevice(1), "", "socket-1");
    time.advance(seconds(1));
    EXPECT_TRUE(running);
    EXPECT_EQ(device(), usbDevice(1));
}

TEST_F(PortKeeperTest, APermissionThatComesLateIsWaitedForWithoutAnEvent) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    adapters.plug(usbDevice(0), "A");
    adapters.permit(usbDevice(0), false);
    time.advance(seconds(2));
    EXPECT_EQ(starts, 0);
    adapters.permit(usbDevice(0), true);
    time.advance(Reconnection::kTick);
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, WithoutADeviceManagerThePortIsFoundAllTheSame) {
    adapters.manager = false;
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    time.advance(seconds(30));
    adapters.plug(usbDevice(0), "A");
    time.advance(Reconnection::kTick);
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, AnEventOfADeviceThatIsGoneWhenAskedChangesNothing) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    adapters.plug(usbDevice(0), "A");
    adapters.pull(usbDevice(0));
    time.advance(seconds(5));
    EXPECT_EQ(starts, 0);
    EXPECT_TRUE(keeper.waiting());
}

TEST_F(PortKeeperTest, APortThatIsHeldByAnotherProgramIsTriedUntilItIsFree) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    busy = true;
    adapters.plug(usbDevice(0), "A");
    time.advance(seconds(5));
    EXPECT_FALSE(running);
    EXPECT_GE(starts, 4);
    busy = false;
    time.advance(Reconnection::kTick);
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, ATwinMakesTheAdapterUnknownAndBothAreNamed) {
    options.PortIdentity = "0403:6001:0001";
    adapters.plug(usbDevice(0), "0001", "socket-1");
    adapters.plug(usbDevice(1), "0001", "socket-2");
    start();
    EXPECT_FALSE(running);
    EXPECT_EQ(keeper.complaint(), "usb:0403:6001:0001 is " + usbDevice(0) + " and " + usbDevice(1) +
                                      "; none of them is taken. Name the device "
                                      "instead.");
    adapters.pull(usbDevice(1));
    start();
    EXPECT_TRUE(running);
    EXPECT_EQ(keeper.complaint(), "");
}

TEST_F(PortKeeperTest, AConfiguredAdapterIsFoundUnderAnotherNumberAtTheStart) {
    options.PortIdentity = "0403:6001:A";
    adapters.plug(usbDevice(3), "A");
    start();
    EXPECT_TRUE(running);
    EXPECT_EQ(port.number, 8);
    EXPECT_THAT(lines, ElementsAre("usb:0403:6001:A is COM8 now; it was COM5."));
}

TEST_F(PortKeeperTest, AConfiguredAdapterThatIsNotThereIsNotReplacedByTheOneThatHasItsNumber) {
    options.PortIdentity = "0403:6001:A";
    adapters.plug(usbDevice(0), "B");
    start();
    EXPECT_FALSE(running);
    EXPECT_EQ(device(), "usb:0403:6001:A");
    adapters.plug(usbDevice(1), "A", "socket-2");
    start();
    EXPECT_TRUE(running);
    EXPECT_EQ(device(), usbDevice(1));
}

TEST_F(PortKeeperTest, AnIdentityThatIsNoneIsToldOnceAndTheNumberCounts) {
    options.PortIdentity = "my adapter";
    adapters.plug(usbDevice(0), "B");
    start();
    EXPECT_TRUE(running);
    start();
    EXPECT_THAT(lines, ElementsAre("PortIdentity=my adapter is not VENDOR:PRODUCT:SERIAL and is left out."));
}

TEST_F(PortKeeperTest, APortThatIsNamedByItsAdapterIsFoundWhereverItIs) {
    port.number = static_cast<std::int16_t>(names.numberFor("usb:0403:6001:A"));
    adapters.plug(usbDevice(4), "A");
    start();
    EXPECT_TRUE(running);
    EXPECT_EQ(device(), usbDevice(4));
    EXPECT_EQ(names.shown(port.number), "usb:0403:6001:A");
    pullFromServer(usbDevice(4));
    adapters.plug(usbDevice(2), "A");
    time.advance(seconds(1));
    EXPECT_TRUE(running);
    EXPECT_EQ(device(), usbDevice(2));
    EXPECT_THAT(lines,
                ElementsAre("usb:0403:6001:A is " + usbDevice(2) + " now; it was " + usbDevice(4) + "."));
}

TEST_F(PortKeeperTest, APortOnNoUsbIsWhateverHasItsName) {
    port.number = static_cast<std::int16_t>(names.numberFor("/dev/adapter"));
    adapters.makeDevice("/dev/adapter");
    start();
    lose();
    adapters.manager = false;
    adapters.makeDevice("/dev/adapter");
    time.advance(Reconnection::kTick);
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, APortThatFailsWithoutBeingPulledIsTriedAgainLater) {
    adapters.plug(usbDevice(0), "A");
    start();
    lose();
    time.advance(Reconnection::kTick * (Reconnection::kTicksOfStayed - 1));
    EXPECT_EQ(starts, 0);
    time.advance(Reconnection::kTick);
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, SleepAndWakingCountAsPullAndPlug) {
    adapters.plug(usbDevice(0), "A");
    start();
    sleep();
    keeper.computerWakes();
    time.advance(Reconnection::kSettle);
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, NothingIsStartedWhileTheComputerTakesItsTimeToSleep) {
    adapters.plug(usbDevice(0), "A");
    start();
    sleep();
    adapters.event();
    time.advance(seconds(20));
    EXPECT_EQ(starts, 0);
    keeper.computerWakes();
    time.advance(Reconnection::kSettle);
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, APortThatWasAwayBeforeIsNotTakenOnTheWayToSleepEither) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    keeper.computerSleeps();
    adapters.plug(usbDevice(0), "A");
    time.advance(seconds(5));
    EXPECT_EQ(starts, 0);
    keeper.computerWakes();
    time.advance(Reconnection::kSettle);
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, AWakingThatIsNeverToldDoesNotStopTheServerForGood) {
    adapters.plug(usbDevice(0), "A");
    start();
    sleep();
    time.advance(Reconnection::kTick * (Reconnection::kTicksToSleep + 1));
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, WhoGaveUpIsNotStarted) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    keeper.giveUp();
    adapters.plug(usbDevice(0), "A");
    time.advance(seconds(60));
    EXPECT_EQ(starts, 0);
}

TEST_F(PortKeeperTest, AServerThatShallNotReconnectDoesNotWait) {
    waitFor = WaitFor::Nothing;
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    EXPECT_FALSE(keeper.waiting());
}

TEST_F(PortKeeperTest, OnlyWhoWaitsForAnyPortWaitsForOneThatWasNeverThere) {
    start();
    EXPECT_FALSE(keeper.waiting());
    waitFor = WaitFor::AnyPort;
    start();
    EXPECT_TRUE(keeper.waiting());
    adapters.plug(usbDevice(0), "A");
    time.advance(seconds(1));
    EXPECT_TRUE(running);
}

TEST_F(PortKeeperTest, ThePortThatTheUserChoseMeanwhileIsNotTheLostAdaptersAnyMore) {
    adapters.plug(usbDevice(0), "A");
    start();
    pullFromServer(usbDevice(0));
    port.number = 6;
    adapters.plug(usbDevice(0), "A");
    time.advance(seconds(5));
    EXPECT_EQ(starts, 0);
    adapters.plug(usbDevice(1), "B", "socket-2");
    time.advance(seconds(1));
    EXPECT_TRUE(running);
    EXPECT_EQ(device(), usbDevice(1));
}

}  // namespace
}  // namespace velmora
