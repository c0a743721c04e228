// What passes between a port and its driver, as pseudo-terminals have it not: modem lines, breaks, counted
// errors, and bytes that take their time to leave.
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <string>
#include <utility>

#include "serial/comm_posix.h"
#include "serial/port_names.h"
#include "support/asked_settings.h"
#include "support/failing_call.h"
#include "support/line_driver.h"
#include "support/pty_pair.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

class CommPosixDriverTest : public ::testing::Test {
  protected:
    CommPosixDriverTest() {
        driver = {};
        driver.present = true;
        EXPECT_EQ(device.open("COM7"), kSuccess);
    }
    ~CommPosixDriverTest() override {
        device.close();
        driver = {};
    }
    std::uint32_t modemLines() {
        std::uint32_t lines = 0xFFFF;
        EXPECT_EQ(device.modemStatus(lines), kSuccess);
        return lines;
    }
    std::uint32_t errors() {
        CommStatus status;
        EXPECT_EQ(device.clearError(status), kSuccess);
        return status.errorFlags;
    }

    test::LineDriver& driver = test::lineDriver();
    test::PtyPair line;
    PortNames names{PortNames::Overrides{{"COM7", line.slavePath()}}};
    PosixCommDevice device{names};
};

TEST_F(CommPosixDriverTest, EachModemLineIsToldByItsBit) {
    constexpr std::array<std::pair<int, std::uint32_t>, 4> rows = {
        {{TIOCM_CTS, kCtsOn}, {TIOCM_DSR, kDsrOn}, {TIOCM_RNG, kRingOn}, {TIOCM_CAR, kCarrierOn}}};
    for (const auto& [raised, told] : rows) {
        driver.lines = raised;
        EXPECT_EQ(modemLines(), told);
    }
    driver.lines = TIOCM_DTR | TIOCM_RTS;
    EXPECT_EQ(modemLines(), 0U) << "these are this end's own";
}

TEST_F(CommPosixDriverTest, TheLinesOfThisEndAreRaisedAndLoweredOneByOne) {
    driver.lines = 0;
    EXPECT_EQ(device.escapeFunction(CommFunction::SetDtr), kSuccess);
    EXPECT_EQ(driver.lines, TIOCM_DTR);
    EXPECT_EQ(device.escapeFunction(CommFunction::SetRts), kSuccess);
    EXPECT_EQ(driver.lines, TIOCM_DTR | TIOCM_RTS);
    EXPECT_EQ(device.escapeFunction(CommFunction::ClearDtr), kSuccess);
    EXPECT_EQ(driver.lines, TIOCM_RTS);
    EXPECT_EQ(device.escapeFunction(CommFunction::ClearRts), kSuccess);
    EXPECT_EQ(driver.lines, 0);
}

TEST_F(CommPosixDriverTest, TheDriverIsAskedForParityDataBitsAndStopBits) {
    constexpr std::array<std::pair<const char*, tcflag_t>, 8> rows = {
        {{"9600,N,8,1", CS8},
         {"9600,O,7,1", CS7 | PARENB | PARODD},
         {"9600,E,7,1", CS7 | PARENB},
         {"9600,M,6,1", CS6 | PARENB | CMSPAR | PARODD},
         {"9600,S,6,1", CS6 | PARENB | CMSPAR},
         {"9600,N,5,1.5", CS5 | CSTOPB},
         {"9600,E,8,2", CS8 | PARENB | CSTOPB},
         {"9600,N,8,1", CS8}}};
    constexpr tcflag_t kAsked = CSIZE | PARENB | PARODD | CMSPAR | CSTOPB;
    for (const auto& [settings, flags] : rows) {
        device.getState();
        EXPECT_EQ(device.buildState(settings), kSuccess);
        device.setState();  // a pseudo-terminal may refuse what it has not
        EXPECT_EQ(test::askedSettings().c_cflag & kAsked, flags) << settings;
    }
}

TEST_F(CommPosixDriverTest, RatesThatTheSystemHasANameForAreAskedForByIt) {
    constexpr std::array<std::pair<int, speed_t>, 30> rows = {
        {{50, B50},           {75, B75},           {110, B110},         {134, B134},
         {150, B150},         {200, B200},         {300, B300},         {600, B600},
         {1200, B1200},       {1800, B1800},       {2400, B2400},       {4800, B4800},
         {9600, B9600},       {19200, B19200},     {38400, B38400},     {57600, B57600},
         {115200, B115200},   {230400, B230400},   {460800, B460800},   {500000, B500000},
         {576000, B576000},   {921600, B921600},   {1000000, B1000000}, {1152000, B1152000},
         {1500000, B1500000}, {2000000, B2000000}, {2500000, B2500000}, {3000000, B3000000},
         {3500000, B3500000}, {4000000, B4000000}}};
    for (const auto& [baud, rate] : rows) {
        device.getState();
        EXPECT_EQ(device.buildState(std::to_string(baud) + ",N,8,1"), kSuccess);
        EXPECT_EQ(device.setState(), kSuccess) << baud;
        EXPECT_EQ(cfgetospeed(&test::askedSettings()), rate) << baud;
        EXPECT_EQ(cfgetispeed(&test::askedSettings()), rate) << baud;
    }
}

TEST_F(CommPosixDriverTest, TheDtrControlReachesTheLine) {
    for (const bool raised : {true, false}) {
        device.getState();
        device.buildState("9600,N,8,1");
        device.setDtrControl(raised);
        EXPECT_EQ(device.setState(), kSuccess);
        EXPECT_EQ(driver.lines & TIOCM_DTR, raised ? TIOCM_DTR : 0);
    }
}

TEST_F(CommPosixDriverTest, ABreakBeginsAndEnds) {
    EXPECT_EQ(device.escapeFunction(CommFunction::SetBreak), kSuccess);
    EXPECT_TRUE(driver.breaking);
    EXPECT_EQ(device.escapeFunction(CommFunction::ClearBreak), kSuccess);
    EXPECT_FALSE(driver.breaking);
}

TEST_F(CommPosixDriverTest, EachKindOfErrorIsToldOnce) {
    constexpr std::array<std::pair<int serial_icounter_struct::*, std::uint32_t>, 5> rows = {
        {{&serial_icounter_struct::buf_overrun, 1U},
         {&serial_icounter_struct::overrun, 2U},
         {&serial_icounter_struct::parity, 4U},
         {&serial_icounter_struct::frame, 8U},
         {&serial_icounter_struct::brk, 16U}}};
    EXPECT_EQ(errors(), 0U);
    for (const auto& [counter, flag] : rows) {
        driver.errors.*counter += 3;
        EXPECT_EQ(errors(), flag);
        EXPECT_EQ(errors(), 0U) << "after it was told";
    }
}

TEST_F(CommPosixDriverTest, WhatWasCountedBeforeThePortWasOpenedIsNoErrorOfThisOne) {
    device.close();
    driver.errors.frame = 7;
    ASSERT_EQ(device.open("COM7"), kSuccess);
    EXPECT_EQ(errors(), 0U);
}

// The request that sets any rate, whose header does not go together with <termios.h>.
constexpr unsigned long kSetAnyRate = _IOC(_IOC_WRITE, 'T', 0x2B, 44);
constexpr unsigned long kReadAnyRate = _IOC(_IOC_READ, 'T', 0x2A, 44);

TEST_F(CommPosixDriverTest, ADriverThatTakesNoRateWithoutANameIsToldAsInvalidSettings) {
    device.getState();
    ASSERT_EQ(device.buildState("31250,N,8,1"), kSuccess);
    for (const auto& [request, error] :
         {std::pair{kSetAnyRate, EINVAL}, {kReadAnyRate, EIO}, {kSetAnyRate, 0}}) {
        driver.refused = {{request, error}};
        EXPECT_EQ(device.setState(), kInvalidParameter) << error;
    }
    driver.refused.clear();
    EXPECT_EQ(device.setState(), kSuccess);
}

TEST_F(CommPosixDriverTest, ADriverWithoutTheExclusiveMarkOpens) {
    device.close();
    driver.refused = {{TIOCGEXCL, ENOTTY}};
    EXPECT_EQ(device.open("COM7"), kSuccess);
}

TEST_F(CommPosixDriverTest, ADriverThatCannotTellWhatWaitsHasFailed) {
    driver.refused = {{FIONREAD, EIO}};
    CommStatus status;
    EXPECT_EQ(device.clearError(status), kDeviceFailed);
}

TEST_F(CommPosixDriverTest, APortWhoseCounterFailsReportsNoErrors) {
    driver.refused = {{TIOCGICOUNT, EIO}};
    driver.errors.frame += 1;
    EXPECT_EQ(errors(), 0U);
}

TEST_F(CommPosixDriverTest, AWaitingReadThatASignalInterruptsLooksAtOnce) {
    CommTimeouts timeouts;
    timeouts.readInterval = 0;
    timeouts.readTotalConstant = test::PtyPair::kPatienceMs;
    ASSERT_EQ(device.setTimeouts(timeouts), kSuccess);
    char byte = 0;
    std::size_t transferred = 7;
    {
        const test::FailingCall interrupted("poll", EINTR);
        EXPECT_EQ(device.read(&byte, 1, transferred), kSuccess);
        EXPECT_EQ(transferred, 0U);
    }
    const test::FailingCall fails("poll", ENOMEM);
    EXPECT_EQ(device.read(&byte, 1, transferred), ENOMEM);
}

TEST_F(CommPosixDriverTest, AWriteThatWaitsForRoomGoesOnAfterASignalAndEndsAtAFailure) {
    std::size_t transferred = 0;
    {
        const test::FailingCall busy("write", EAGAIN);
        const test::FailingCall interrupted("poll", EINTR);
        EXPECT_EQ(device.write("hello", transferred), kSuccess);
        EXPECT_EQ(line.read(5), "hello");
    }
    const test::FailingCall busy("write", EAGAIN);
    const test::FailingCall fails("poll", ENOMEM);
    EXPECT_EQ(device.write("hello", transferred), ENOMEM);
    EXPECT_EQ(transferred, 0U);
}

TEST_F(CommPosixDriverTest, ALineOfWhichNothingIsKnownIsNotCut) {
    const test::FailingCall fails("poll", ENOMEM);
    CommStatus status;
    EXPECT_EQ(device.clearError(status), kSuccess);
}

TEST_F(CommPosixDriverTest, TheLastBytesLeaveBeforeThePortIsGivenBack) {
    driver.unsent = {3, 1, 0};
    EXPECT_EQ(device.close(), kSuccess);
    EXPECT_EQ(driver.waited, 10ms) << "two looks found bytes";
    EXPECT_EQ(driver.dropped, 0);
}

TEST_F(CommPosixDriverTest, BytesThatNeverLeaveAreDroppedAfterASecond) {
    driver.unsent = {3};
    EXPECT_EQ(device.close(), kSuccess);
    EXPECT_EQ(driver.waited, 1s);
    EXPECT_EQ(driver.dropped, 1);
}

TEST_F(CommPosixDriverTest, ALineThatTookNoMoreBytesIsNotWaitedForAgain) {
    CommTimeouts timeouts;
    timeouts.writeTotalMultiplier = 0;
    ASSERT_EQ(device.setTimeouts(timeouts), kSuccess);
    std::size_t transferred = 0;
    ASSERT_EQ(device.write(std::string(1 << 20, 'x'), transferred), ETIMEDOUT);
    driver.unsent = {3};
    EXPECT_EQ(device.close(), kSuccess);
    EXPECT_EQ(driver.waited, 0ms);
    EXPECT_EQ(driver.dropped, 1);
}

}  // namespace
}  // namespace velmora
