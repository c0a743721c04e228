#include <gtest/gtest.h>

#include "serial/comm_posix.h"
#include "serial/port_names.h"
#include "serial/unlisted_rate.h"
#include "support/pty_pair.h"

namespace velmora {
namespace {

/// A pseudo-terminal, which takes any rate, known as COM7.
class UnlistedRateTest : public ::testing::Test {
  protected:
    SystemError openAt(const std::string& settings) {
        device.open("COM7");
        device.getState();
        const SystemError error = device.buildState(settings);
        return error != kSuccess ? error : device.setState();
    }

    test::PtyPair line;
    PortNames names{PortNames::Overrides{{"COM7", line.slavePath()}}};
    PosixCommDevice device{names};
};

TEST_F(UnlistedRateTest, ADeviceTakesRatesWithoutAName) {
    for (const std::uint32_t rate : {14'400U, 31'250U, 250'000U, 9'601U}) {
        EXPECT_EQ(openAt(std::to_string(rate) + ",N,8,1"), kSuccess) << rate;
        EXPECT_EQ(unlistedRate(line.masterFd()), rate);
        device.close();
    }
}

TEST_F(UnlistedRateTest, ARateWithANameIsNotUnlisted) {
    EXPECT_EQ(openAt("31250,N,8,1"), kSuccess);
    EXPECT_EQ(openAt("19200,N,8,1"), kSuccess);
    EXPECT_EQ(unlistedRate(line.masterFd()), std::nullopt);
    const termios now = line.settings();
    EXPECT_EQ(cfgetospeed(&now), static_cast<speed_t>(B19200));
}

TEST_F(UnlistedRateTest, TheRateOfBeforeComesBackAtClosing) {
    ASSERT_TRUE(setUnlistedRate(line.masterFd(), 31'250));
    ASSERT_EQ(openAt("9600,N,8,1"), kSuccess);
    EXPECT_EQ(unlistedRate(line.masterFd()), std::nullopt);
    device.close();
    EXPECT_EQ(unlistedRate(line.masterFd()), 31'250U);
    ASSERT_EQ(openAt("14400,N,8,1"), kSuccess);
    device.close();
    EXPECT_EQ(unlistedRate(line.masterFd()), 31'250U);
}

TEST_F(UnlistedRateTest, BytesPassAtSuchARate) {
    ASSERT_EQ(openAt("31250,N,8,1"), kSuccess);
    std::size_t transferred = 0;
    EXPECT_EQ(device.write("hello", transferred), kSuccess);
    EXPECT_EQ(line.read(5), "hello");
}

TEST_F(UnlistedRateTest, WhatIsNoTerminalHasNone) {
    EXPECT_FALSE(setUnlistedRate(-1, 31'250));
    EXPECT_EQ(unlistedRate(-1), std::nullopt);
}

}  // namespace
}  // namespace velmora
