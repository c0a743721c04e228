// The public layer on a real line.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "serial/my_comm.h"
#include "support/com_ports.h"
#include "support/comm_error_of.h"
#include "support/no_yield.h"

namespace velmora {
namespace {

using test::commErrorOf;
using ::testing::HasSubstr;

/// The number of the error that an action raises; nothing when it raises none.
template <typename Action>
std::optional<std::int32_t> raisedBy(Action action) {
    const std::optional<CommError> error = commErrorOf(action);
    return error ? std::optional<std::int32_t>(error->number()) : std::nullopt;
}

/// A port with a cable to another one.
class MyCommWin32Test : public ::testing::Test {
  protected:
    void SetUp() override {
        if (ports.port.empty() || ports.farPort.empty()) {
            GTEST_SKIP() << "no ports are named for this test";
        }
        port.setCommPort(test::ComPorts::number(ports.port));
        farEnd.setCommPort(test::ComPorts::number(ports.farPort));
    }
    static bool waitForInput(myComm& end, int count) {
        return test::eventually([&] { return end.InBufferCount() >= count; });
    }
    static std::string input(myComm& end) {
        std::string text;
        EXPECT_TRUE(end.GetInput(100, text));
        return text;
    }

    test::ComPorts ports;
    PortNames names;
    std::unique_ptr<CommDevice> device = makeCommDevice(names);
    std::unique_ptr<CommDevice> farDevice = makeCommDevice(names);
    test::NoYield yield;
    myComm port{*device, yield};
    myComm farEnd{*farDevice, yield};
};

TEST_F(MyCommWin32Test, SendsAndReceives) {
    port.OpenPort();
    farEnd.OpenPort();
    EXPECT_TRUE(port.Send("question"));
    ASSERT_TRUE(waitForInput(farEnd, 8));
    EXPECT_EQ(input(farEnd), "question");
    EXPECT_TRUE(farEnd.Send("answer"));
    ASSERT_TRUE(waitForInput(port, 6));
    EXPECT_EQ(input(port), "answer");
    EXPECT_EQ(port.InBufferCount(), 0);
    EXPECT_EQ(input(port), "");
}

TEST_F(MyCommWin32Test, ManyBytesArriveWholeAndInOrder) {
    port.OpenPort();
    farEnd.OpenPort();
    std::string sent;
    for (int i = 0; i < 3000; ++i) {
        sent += static_cast<char>(i * 7);
    }
    std::string received;
    for (std::size_t at = 0; at < sent.size(); at += 300) {
        port.Send(std::string_view(sent).substr(at, 300));
        ASSERT_TRUE(waitForInput(farEnd, 300));
        std::string text;
        farEnd.GetInput(1024, text);
        received += text;
    }
    EXPECT_EQ(received, sent);
}

TEST_F(MyCommWin32Test, WhatWaitedBeforeOpeningIsDropped) {
    {
        const auto early = makeCommDevice(names);
        ASSERT_EQ(early->open(ports.port), kSuccess);
        farEnd.OpenPort();
        farEnd.Send("stale");
        ASSERT_TRUE(test::waitForInput(*early, 5));
    }
    port.OpenPort();
    EXPECT_EQ(port.InBufferCount(), 0);
}

TEST_F(MyCommWin32Test, DtrAndRtsNeverFailWhateverTheLineHas) {
    port.setDTREnable(false);
    EXPECT_NO_THROW(port.OpenPort());
    EXPECT_EQ(port.lastErrorNumber(), 0);
    EXPECT_NO_THROW(port.setDTREnable(true));
    EXPECT_NO_THROW(port.setRTSEnable(true));
    EXPECT_NO_THROW(port.DSRHolding());
    EXPECT_NO_THROW(port.CTSHolding());
    EXPECT_TRUE(port.DTREnable());
    EXPECT_TRUE(port.RTSEnable());
}

TEST_F(MyCommWin32Test, ACloseInsideTheYieldOfAReadRaises8018) {
    port.OpenPort();
    farEnd.OpenPort();
    farEnd.Send("bytes");
    ASSERT_TRUE(waitForInput(port, 5));
    yield.onYield = [this] { port.ClosePort(); };
    std::string text;
    EXPECT_EQ(raisedBy([&] { port.GetInput(10, text); }), 8018);
    EXPECT_EQ(text, "");
}

TEST_F(MyCommWin32Test, ThePortCanBeOpenedAgainAndAgain) {
    for (int i = 0; i < 20; ++i) {
        EXPECT_NO_THROW(port.OpenPort());
        EXPECT_TRUE(port.ClosePort());
    }
    EXPECT_EQ(port.CommID(), CommDevice::kNoHandle);
}

// The cable is gone afterwards, so this is one test.
TEST_F(MyCommWin32Test, APulledCableIsNoticedByEveryCallAndThePortClosesAllTheSame) {
    if (ports.pulled.empty() || ports.pull.empty()) {
        GTEST_SKIP() << "no cable that may be pulled";
    }
    port.setCommPort(test::ComPorts::number(ports.pulled));
    ASSERT_NO_THROW(port.OpenPort());
    ASSERT_TRUE(port.Send("x"));
    ports.pullCable();
    ASSERT_TRUE(
        test::eventually([this] { return commErrorOf([this] { port.InBufferCount(); }).has_value(); }));
    EXPECT_EQ(raisedBy([this] { port.InBufferCount(); }), -1);
    std::string text;
    EXPECT_EQ(raisedBy([&] { port.GetInput(10, text); }), -1);
    EXPECT_THAT(port.lastErrorDescription(), HasSubstr("CommRead (ClearCommError) - "));
    EXPECT_EQ(raisedBy([this] { port.Send("x"); }), -1);
    EXPECT_THAT(port.lastErrorDescription(), HasSubstr("CommWrite (WriteFile) - "));
    EXPECT_TRUE(port.ClosePort());
    EXPECT_EQ(raisedBy([this] { port.OpenPort(); }), 8002);
}

}  // namespace
}  // namespace velmora
