#include "serial/my_comm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "support/comm_error_of.h"
#include "support/fake_comm_device.h"
#include "support/no_yield.h"

namespace velmora {
namespace {

using test::commErrorOf;
using ::testing::ElementsAre;

class RecordingObserver : public PortObserver {
  public:
    void portOpened(std::intptr_t handle) override { events.push_back("opened " + std::to_string(handle)); }
    void portClosing(std::intptr_t handle) override { events.push_back("closing " + std::to_string(handle)); }
    void portRead(std::string_view bytes) override { events.push_back("read " + std::string(bytes)); }
    void portWriting(std::string_view bytes) override { events.push_back("writing " + std::string(bytes)); }
    std::vector<std::string> events;
};

class MyCommTest : public ::testing::Test {
  protected:
    MyCommTest() { port.observe(observer); }

    template <typename Action>
    void expectRaised(std::int32_t number, const std::string& description, Action action) {
        const std::optional<CommError> error = commErrorOf(action);
        ASSERT_TRUE(error.has_value());
        EXPECT_EQ(error->number(), number);
        EXPECT_EQ(error->description(), description);
    }

    test::FakeCommDevice device;
    test::NoYield yield;
    RecordingObserver observer;
    myComm port{device, yield};
    std::string text = "old";
};

TEST_F(MyCommTest, StartsWithItsDefaults) {
    EXPECT_EQ(port.CommPort(), 1);
    EXPECT_EQ(port.Settings(), "9600,N,8,1");
    EXPECT_FALSE(port.PortOpen());
    EXPECT_TRUE(port.DTREnable());
    EXPECT_FALSE(port.RTSEnable());
    EXPECT_EQ(port.CommID(), CommDevice::kNoHandle);
    EXPECT_EQ(port.lastErrorNumber(), 0);
}

TEST_F(MyCommTest, OpensThePortOfItsNumberWithItsSettings) {
    port.setCommPort(7);
    port.setSettings("2400,N,8,1");
    EXPECT_TRUE(port.OpenPort());
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(device.openedName, "COM7");
    EXPECT_EQ(device.settings, "2400,N,8,1");
    EXPECT_EQ(port.CommID(), test::FakeCommDevice::kOpenHandle);
}

TEST_F(MyCommTest, ThePortNumberIsNotChecked) {
    port.setCommPort(-3);
    EXPECT_EQ(port.CommPort(), -3);
    port.OpenPort();
    EXPECT_EQ(device.openedName, "COM-3");
}

TEST_F(MyCommTest, OpeningTwiceRaises8005) {
    port.OpenPort();
    expectRaised(8005, "Port already open", [this] { port.OpenPort(); });
    EXPECT_TRUE(port.PortOpen());
}

struct OpenFailure {
    const char* name;
    const char* call;
    SystemError error;
    std::int32_t number;
    const char* description;
};

class MyCommOpenFailureTest : public MyCommTest, public ::testing::WithParamInterface<OpenFailure> {};

TEST_P(MyCommOpenFailureTest, IsRaisedByItsNumber) {
    device.errors[GetParam().call] = GetParam().error;
    expectRaised(GetParam().number, GetParam().description, [this] { port.OpenPort(); });
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(port.lastErrorNumber(), GetParam().error);
    EXPECT_TRUE(observer.events.empty());
}

constexpr OpenFailure kOpenFailures[] = {
    {"Missing", "open", 2, 8002, "Invalid port number"},
    {"HeldByAnother", "open", 5, 8005, "Port already open"},
    {"BadSettings", "buildState", 87, 380, "Invalid port settings"},
    {"RefusedSettings", "setState", 87, 380, "Invalid port settings"},
    {"NoPermission", "open", 13, -1, "Error (13): CommOpen (CreateFile) - message 13"},
    {"Other", "purge", 31, -1, "Error (31): CommOpen (PurgeComm) - message 31"},
};
INSTANTIATE_TEST_SUITE_P(Rows, MyCommOpenFailureTest, ::testing::ValuesIn(kOpenFailures),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(MyCommTest, AfterBadSettingsTheObjectStaysInUse) {
    device.errors["buildState"] = 87;
    EXPECT_TRUE(commErrorOf([this] { port.OpenPort(); }).has_value());
    device.errors.clear();
    expectRaised(-1, "Error (-1): CommOpen - Port in use", [this] { port.OpenPort(); });
}

TEST_F(MyCommTest, AMissingPortCanBeTriedAgain) {
    device.errors["open"] = 2;
    EXPECT_TRUE(commErrorOf([this] { port.OpenPort(); }).has_value());
    device.errors.clear();
    EXPECT_TRUE(port.OpenPort());
}

TEST_F(MyCommTest, PortOpenOpensAndCloses) {
    port.setPortOpen(true);
    EXPECT_TRUE(port.PortOpen());
    EXPECT_TRUE(device.isOpen);
    port.setPortOpen(false);
    EXPECT_FALSE(port.PortOpen());
    EXPECT_FALSE(device.isOpen);
}

TEST_F(MyCommTest, ClosingAClosedPortIsFine) {
    EXPECT_TRUE(port.ClosePort());
    EXPECT_FALSE(device.called("close"));
}

TEST_F(MyCommTest, ACloseThatFailsStillCloses) {
    port.OpenPort();
    device.errors["close"] = 6;
    EXPECT_TRUE(port.ClosePort());
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(MyCommTest, DestructionClosesAnOpenPort) {
    {
        myComm other{device, yield};
        other.observe(observer);
        other.OpenPort();
    }
    EXPECT_FALSE(device.isOpen);
    EXPECT_THAT(observer.events, ElementsAre("opened 42", "closing 42"));
}

TEST_F(MyCommTest, TheObserverHearsOfOpeningAndClosing) {
    port.OpenPort();
    EXPECT_THAT(observer.events, ElementsAre("opened 42"));
    port.ClosePort();
    EXPECT_THAT(observer.events, ElementsAre("opened 42", "closing 42"));
}

TEST_F(MyCommTest, TheObserverHearsOfBytesThatWereReadAndOfNoEmptyRead) {
    port.OpenPort();
    observer.events.clear();
    port.GetInput(10, text);
    EXPECT_TRUE(observer.events.empty());
    device.input = "abc";
    port.GetInput(10, text);
    EXPECT_THAT(observer.events, ElementsAre("read abc"));
}

TEST_F(MyCommTest, TheObserverHearsOfBytesBeforeTheyAreWritten) {
    port.OpenPort();
    observer.events.clear();
    device.errors["write"] = 31;
    EXPECT_TRUE(commErrorOf([this] { port.Send("abc"); }).has_value());
    EXPECT_THAT(observer.events, ElementsAre("writing abc"));
    port.ClosePort();
    observer.events.clear();
    EXPECT_TRUE(commErrorOf([this] { port.Send("abc"); }).has_value());
    EXPECT_TRUE(observer.events.empty());
}

TEST_F(MyCommTest, AllObserversHearInTheirOrder) {
    std::vector<std::string>& events = observer.events;
    RecordingObserver second;
    port.observe(second);
    port.OpenPort();
    port.Send("abc");
    port.ClosePort();
    EXPECT_THAT(second.events, ElementsAre("opened 42", "writing abc", "closing 42"));
    EXPECT_EQ(events, second.events);
}

TEST_F(MyCommTest, ObserversAreOptional) {
    myComm lonely{device, yield};
    EXPECT_TRUE(lonely.OpenPort());
    EXPECT_TRUE(lonely.Send("abc"));
    EXPECT_TRUE(lonely.ClosePort());
}

TEST_F(MyCommTest, SettingsWhileOpenRaise8000) {
    port.OpenPort();
    expectRaised(8000, "Port already open", [this] { port.setSettings("1200,N,8,1"); });
    EXPECT_EQ(port.Settings(), "9600,N,8,1");
}

TEST_F(MyCommTest, SendWritesAllBytes) {
    port.OpenPort();
    const std::string bytes("\x16\x10\x00\xFF", 4);
    EXPECT_TRUE(port.Send(bytes));
    EXPECT_EQ(device.sent, bytes);
}

TEST_F(MyCommTest, SendAndGetInputNeedAnOpenPort) {
    expectRaised(8018, "Port not open", [this] { port.Send("x"); });
    expectRaised(8018, "Port not open", [this] { port.GetInput(10, text); });
    EXPECT_TRUE(device.calls.empty());
}

TEST_F(MyCommTest, AFailedSendRaisesTheFullDescription) {
    port.OpenPort();
    device.errors["write"] = 31;
    expectRaised(-1, "Error (31): CommWrite (WriteFile) - message 31  COMM Error Flags = 0",
                 [this] { port.Send("x"); });
}

TEST_F(MyCommTest, GetInputGivesWhatWaits) {
    port.OpenPort();
    device.input = "abc";
    EXPECT_TRUE(port.GetInput(2, text));
    EXPECT_EQ(text, "ab");
}

TEST_F(MyCommTest, GetInputOnAnEmptyQueueIsTrueWithoutReading) {
    port.OpenPort();
    EXPECT_TRUE(port.GetInput(100, text));
    EXPECT_EQ(text, "");
    EXPECT_FALSE(device.called("read"));
}

TEST_F(MyCommTest, AFailedReadRaisesTheFullDescription) {
    port.OpenPort();
    device.input = "x";
    device.errors["read"] = 31;
    expectRaised(-1, "Error (31): CommRead (ReadFile) - message 31  COMM Error Flags = 0",
                 [this] { port.GetInput(10, text); });
}

TEST_F(MyCommTest, ACloseInsideTheYieldOfAReadRaises8018) {
    port.OpenPort();
    device.input = "x";
    yield.onYield = [this] { port.ClosePort(); };
    expectRaised(8018, "Port not open", [this] { port.GetInput(10, text); });
    EXPECT_FALSE(device.called("read"));
}

TEST_F(MyCommTest, ACloseInsideTheYieldOfASendLeavesItSent) {
    port.OpenPort();
    yield.onYield = [this] { port.ClosePort(); };
    EXPECT_TRUE(port.Send("bye"));
    EXPECT_EQ(device.sent, "bye");
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(MyCommTest, InBufferCountCountsWhatWaits) {
    port.OpenPort();
    device.input = "abc";
    EXPECT_EQ(port.InBufferCount(), 3);
}

TEST_F(MyCommTest, InBufferCountStopsAtTheLargestNumber) {
    port.OpenPort();
    device.input.assign(32'767, 'x');
    EXPECT_EQ(port.InBufferCount(), 32'767);
    device.input.assign(70'000, 'x');
    EXPECT_EQ(port.InBufferCount(), 32'767);
}

TEST_F(MyCommTest, AFailedInBufferCountRaises) {
    port.OpenPort();
    device.errors["clearError"] = 31;
    expectRaised(-1, "Error (31): CommRead (InBufferCount) - message 31  COMM Error Flags = 0",
                 [this] { port.InBufferCount(); });
}

TEST_F(MyCommTest, InBufferCountOfAClosedPortRaises) {
    expectRaised(-1, "Error (6): CommRead (InBufferCount) - message 6  COMM Error Flags = 0",
                 [this] { port.InBufferCount(); });
}

TEST_F(MyCommTest, DTREnableBeforeOpeningTakesEffectAtOpening) {
    port.setDTREnable(false);
    port.OpenPort();
    EXPECT_TRUE(device.called("setDtrControl off"));
    EXPECT_TRUE(device.escapes.empty());
}

TEST_F(MyCommTest, DTRAndRTSOfAnOpenPortAreSetAtOnce) {
    port.OpenPort();
    port.setDTREnable(false);
    port.setRTSEnable(true);
    EXPECT_THAT(device.escapes, ElementsAre(6, 3));
    EXPECT_FALSE(port.DTREnable());
    EXPECT_TRUE(port.RTSEnable());
}

TEST_F(MyCommTest, RTSIsNotAppliedWhenThePortOpens) {
    port.setRTSEnable(true);
    port.OpenPort();
    EXPECT_TRUE(device.escapes.empty());
    EXPECT_TRUE(port.RTSEnable());
}

TEST_F(MyCommTest, APortWithoutModemLinesRecordsAndKeepsTheValue) {
    port.OpenPort();
    device.errors["escapeFunction"] = 50;
    EXPECT_NO_THROW(port.setDTREnable(false));
    EXPECT_NO_THROW(port.setRTSEnable(true));
    EXPECT_FALSE(port.DTREnable());
    EXPECT_TRUE(port.RTSEnable());
    EXPECT_EQ(port.lastErrorNumber(), 50);
    EXPECT_EQ(port.lastErrorDescription(), "Error (50): CommSetLine (EscapeCommFunction) - message 50");
}

TEST_F(MyCommTest, HoldingReadsTheOtherSidesLines) {
    port.OpenPort();
    device.modemLines = kDsrOn;
    EXPECT_TRUE(port.DSRHolding());
    EXPECT_FALSE(port.CTSHolding());
    device.modemLines = kCtsOn;
    EXPECT_FALSE(port.DSRHolding());
    EXPECT_TRUE(port.CTSHolding());
}

TEST_F(MyCommTest, LinesThatCannotBeReadAreOff) {
    port.OpenPort();
    device.modemLines = kDsrOn | kCtsOn;
    device.errors["modemStatus"] = 50;
    EXPECT_FALSE(port.DSRHolding());
    EXPECT_FALSE(port.CTSHolding());
    EXPECT_EQ(port.lastErrorNumber(), 50);
}

}  // namespace
}  // namespace velmora
