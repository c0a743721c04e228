// The public layer on a real line.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "serial/my_comm.h"
#include "serial/port_names.h"
#include "support/comm_error_of.h"
#include "support/no_yield.h"
#include "support/pty_pair.h"

namespace velmora {
namespace {

using test::commErrorOf;
using ::testing::StartsWith;

/// A port on a pseudo-terminal of its own.
class MyCommPtyTest : public ::testing::Test {
  protected:
    MyCommPtyTest() { port.setCommPort(static_cast<std::int16_t>(names.numberFor(line.slavePath()))); }

    std::int32_t numberRaisedBy(myComm& other) {
        const std::optional<CommError> error = commErrorOf([&] { other.OpenPort(); });
        return error ? error->number() : 0;
    }
    bool waitForInput() { return test::PtyPair::waitReadable(static_cast<int>(port.CommID())); }

    test::PtyPair line;
    PortNames names;
    std::unique_ptr<CommDevice> device = makeCommDevice(names);
    test::NoYield yield;
    myComm port{*device, yield};
    std::string text;
};

TEST_F(MyCommPtyTest, SendsAndReceives) {
    port.OpenPort();
    EXPECT_TRUE(port.Send("question"));
    EXPECT_EQ(line.read(8), "question");
    line.write("answer");
    ASSERT_TRUE(waitForInput());
    EXPECT_EQ(port.InBufferCount(), 6);
    EXPECT_TRUE(port.GetInput(100, text));
    EXPECT_EQ(text, "answer");
    EXPECT_EQ(port.InBufferCount(), 0);
    EXPECT_TRUE(port.GetInput(100, text));
    EXPECT_EQ(text, "");
}

TEST_F(MyCommPtyTest, OpeningTwiceRaises8005) {
    port.OpenPort();
    EXPECT_EQ(numberRaisedBy(port), 8005);
}

TEST_F(MyCommPtyTest, ASecondObjectOnTheSameLineRaises8005) {
    port.OpenPort();
    const auto otherDevice = makeCommDevice(names);
    myComm other{*otherDevice, yield};
    other.setCommPort(port.CommPort());
    EXPECT_EQ(numberRaisedBy(other), 8005);
    port.ClosePort();
    EXPECT_EQ(numberRaisedBy(other), 0);
}

TEST_F(MyCommPtyTest, AMissingPortRaises8002) {
    port.setCommPort(static_cast<std::int16_t>(names.numberFor("/dev/velmora-has-no-such-device")));
    EXPECT_EQ(numberRaisedBy(port), 8002);
    port.setCommPort(999);
    EXPECT_EQ(numberRaisedBy(port), 8002);
}

TEST_F(MyCommPtyTest, BadSettingsRaise380AndLeaveTheLineFree) {
    port.setSettings("fast");
    EXPECT_EQ(numberRaisedBy(port), 380);
    const auto otherDevice = makeCommDevice(names);
    myComm other{*otherDevice, yield};
    other.setCommPort(port.CommPort());
    EXPECT_EQ(numberRaisedBy(other), 0);
}

TEST_F(MyCommPtyTest, AfterBadSettingsTheObjectStaysInUse) {
    port.setSettings("9600,N,8,9");
    EXPECT_EQ(numberRaisedBy(port), 380);
    port.setSettings("9600,N,8,1");
    const auto error = commErrorOf([this] { port.OpenPort(); });
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->description(), "Error (-1): CommOpen - Port in use");
}

TEST_F(MyCommPtyTest, WhatWaitedBeforeOpeningIsDropped) {
    const int early = ::open(line.slavePath().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(early, 0);
    line.write("stale");
    ASSERT_TRUE(test::PtyPair::waitReadable(early));
    port.OpenPort();
    EXPECT_EQ(port.InBufferCount(), 0);
    ::close(early);
}

TEST_F(MyCommPtyTest, APulledCableIsNoticedByEveryCall) {
    port.OpenPort();
    line.closeMaster();
    EXPECT_EQ(commErrorOf([this] { port.InBufferCount(); })->number(), -1);
    EXPECT_EQ(commErrorOf([this] { port.GetInput(10, text); })->number(), -1);
    EXPECT_EQ(commErrorOf([this] { port.Send("x"); })->number(), -1);
    EXPECT_THAT(port.lastErrorDescription(), StartsWith("Error (1117): CommWrite (WriteFile) - "));
    EXPECT_TRUE(port.ClosePort());
}

TEST_F(MyCommPtyTest, APortWhoseCableWasPulledCanBeOpenedElsewhere) {
    port.OpenPort();
    line.closeMaster();
    port.ClosePort();
    test::PtyPair back;
    port.setCommPort(static_cast<std::int16_t>(names.numberFor(back.slavePath())));
    EXPECT_EQ(numberRaisedBy(port), 0);
}

TEST_F(MyCommPtyTest, ACloseInsideTheYieldOfAReadRaises8018) {
    port.OpenPort();
    line.write("bytes");
    ASSERT_TRUE(waitForInput());
    yield.onYield = [this] { port.ClosePort(); };
    EXPECT_EQ(commErrorOf([this] { port.GetInput(10, text); })->number(), 8018);
    EXPECT_EQ(text, "");
}

TEST_F(MyCommPtyTest, ACloseInsideTheYieldOfASendIsSafe) {
    port.OpenPort();
    yield.onYield = [this] { port.ClosePort(); };
    EXPECT_TRUE(port.Send("last words"));
    EXPECT_EQ(commErrorOf([this] { port.Send("more"); })->number(), 8018);
}

TEST_F(MyCommPtyTest, DTRAndRTSOnALineWithoutThemAreRecordedOnly) {
    port.setDTREnable(false);
    port.OpenPort();
    EXPECT_EQ(port.lastErrorNumber(), 0);
    EXPECT_NO_THROW(port.setDTREnable(true));
    EXPECT_NE(port.lastErrorNumber(), 0);
    EXPECT_NO_THROW(port.setRTSEnable(true));
    EXPECT_FALSE(port.DSRHolding());
    EXPECT_FALSE(port.CTSHolding());
}

}  // namespace
}  // namespace velmora
