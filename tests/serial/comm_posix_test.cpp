#include "serial/comm_posix.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <string>

#include "serial/port_names.h"
#include "support/ordinary_login.h"
#include "support/pty_pair.h"

namespace velmora {
namespace {

using ::testing::HasSubstr;

constexpr tcflag_t kSizeAndParity = CSIZE | PARENB | PARODD | CSTOPB;

/// A device on a pseudo-terminal of its own, known as COM7.
class CommPosixTest : public ::testing::Test {
  protected:
    void openLine() {
        ASSERT_EQ(device.open("COM7"), kSuccess);
        ASSERT_EQ(device.getState(), kSuccess);
        ASSERT_EQ(device.buildState("9600,N,8,1"), kSuccess);
        ASSERT_EQ(device.setState(), kSuccess);
    }
    SystemError apply(const std::string& settings) {
        device.getState();
        const SystemError error = device.buildState(settings);
        return error != kSuccess ? error : device.setState();
    }
    bool waitForInput() { return test::PtyPair::waitReadable(static_cast<int>(device.handle())); }
    std::size_t waiting() {
        CommStatus status;
        EXPECT_EQ(device.clearError(status), kSuccess);
        return status.inQueue;
    }
    std::string read(std::size_t count) {
        std::string buffer(count, '\0');
        std::size_t transferred = 0;
        EXPECT_EQ(device.read(buffer.data(), count, transferred), kSuccess);
        buffer.resize(transferred);
        return buffer;
    }

    test::PtyPair line;
    PortNames names{PortNames::Overrides{
        {"COM7", line.slavePath()}, {"COM8", "/dev/velmora-has-no-such-device"}, {"COM9", "/dev/null"}}};
    PosixCommDevice device{names};
};

TEST_F(CommPosixTest, TellsWhatItIsSetTo) {
    EXPECT_EQ(device.settingsInUse(), std::nullopt);
    openLine();
    // A pseudo-terminal has a rate of its own, but no parity.
    ASSERT_EQ(apply("2400,E,8,1"), kSuccess);
    EXPECT_EQ(device.settingsInUse(), LineSettings({2400, Parity::None, 8, StopBits::One}));
}

TEST_F(CommPosixTest, BytesPassUnchangedInBothDirections) {
    openLine();
    std::string every;
    for (int code = 0; code < 256; ++code) {
        every += static_cast<char>(code);
    }
    std::size_t transferred = 0;
    EXPECT_EQ(device.write(every, transferred), kSuccess);
    EXPECT_EQ(transferred, every.size());
    EXPECT_EQ(line.read(every.size()), every);

    ASSERT_EQ(line.write(every), every.size());
    std::string received;
    while (received.size() < every.size() && waitForInput()) {
        received += read(every.size());
    }
    EXPECT_EQ(received, every);
}

TEST_F(CommPosixTest, TheLineIsRawWhateverItWasBefore) {
    termios cooked = line.settings();
    cooked.c_iflag |= IXON | IXOFF | IXANY | ICRNL | ISTRIP;
    cooked.c_lflag |= ICANON | ECHO | ISIG;
    cooked.c_oflag |= OPOST;
    line.setSettings(cooked);
    openLine();
    const termios now = line.settings();
    EXPECT_EQ(now.c_iflag & static_cast<tcflag_t>(IXON | IXOFF | IXANY | ICRNL | ISTRIP), 0U);
    EXPECT_EQ(now.c_lflag & static_cast<tcflag_t>(ICANON | ECHO | ISIG), 0U);
    EXPECT_EQ(now.c_oflag & static_cast<tcflag_t>(OPOST), 0U);
    EXPECT_EQ(now.c_cflag & static_cast<tcflag_t>(CLOCAL | CREAD | HUPCL),
              static_cast<tcflag_t>(CLOCAL | CREAD | HUPCL));
    EXPECT_EQ(now.c_cflag & static_cast<tcflag_t>(CRTSCTS), 0U);
    EXPECT_EQ(now.c_cc[VMIN], 0);
    EXPECT_EQ(now.c_cc[VTIME], 0);
}

TEST_F(CommPosixTest, ClosingRestoresTheFormerSettings) {
    termios before = line.settings();
    before.c_lflag |= ECHO | ICANON;
    before.c_iflag |= IXON;
    cfsetispeed(&before, B1200);
    cfsetospeed(&before, B1200);
    line.setSettings(before);
    openLine();
    EXPECT_EQ(device.close(), kSuccess);
    const termios after = line.settings();
    EXPECT_EQ(after.c_lflag, before.c_lflag);
    EXPECT_EQ(after.c_iflag, before.c_iflag);
    EXPECT_EQ(cfgetospeed(&after), static_cast<speed_t>(B1200));
}

struct Rate {
    const char* settings;
    speed_t speed;
};

TEST_F(CommPosixTest, TakesTheStandardRates) {
    ASSERT_EQ(device.open("COM7"), kSuccess);
    const Rate rates[] = {
        {"110,N,8,1", B110},       {"11,N,8,1", B110},        {"300,N,8,1", B300},
        {"600,N,8,1", B600},       {"1200,N,8,1", B1200},     {"2400,N,8,1", B2400},
        {"4800,N,8,1", B4800},     {"9600,N,8,1", B9600},     {"19200,N,8,1", B19200},
        {"38400,N,8,1", B38400},   {"57600,N,8,1", B57600},   {"115200,N,8,1", B115200},
        {"230400,N,8,1", B230400}, {"460800,N,8,1", B460800},
    };
    for (const Rate& rate : rates) {
        EXPECT_EQ(apply(rate.settings), kSuccess) << rate.settings;
        const termios now = line.settings();
        EXPECT_EQ(cfgetospeed(&now), rate.speed) << rate.settings;
        EXPECT_EQ(cfgetispeed(&now), rate.speed) << rate.settings;
    }
}

TEST_F(CommPosixTest, RefusesWhatIsNoModeString) {
    ASSERT_EQ(device.open("COM7"), kSuccess);
    for (const char* const settings : {"", "fast", "9600,N,9,1", "0,N,8,1", "4294967296,N,8,1"}) {
        EXPECT_EQ(apply(settings), kInvalidParameter) << settings;
    }
}

TEST_F(CommPosixTest, StopBitsReachTheDriver) {
    ASSERT_EQ(device.open("COM7"), kSuccess);
    EXPECT_EQ(apply("9600,N,8,2"), kSuccess);
    EXPECT_NE(line.settings().c_cflag & static_cast<tcflag_t>(CSTOPB), 0U);
    EXPECT_EQ(apply("9600,N,8,1"), kSuccess);
    EXPECT_EQ(line.settings().c_cflag & kSizeAndParity, static_cast<tcflag_t>(CS8));
}

TEST_F(CommPosixTest, ParityThatThePseudoTerminalIgnoresIsNoError) {
    ASSERT_EQ(device.open("COM7"), kSuccess);
    for (const char* const settings :
         {"9600,E,7,1", "9600,O,8,1", "9600,M,8,1", "9600,S,7,2", "50,N,5,1.5"}) {
        EXPECT_EQ(apply(settings), kSuccess) << settings;
    }
}

TEST_F(CommPosixTest, MissingDevicesAndUnknownNumbersAreNoSuchPort) {
    EXPECT_EQ(device.open("COM8"), kNoSuchPort);
    EXPECT_EQ(device.open("COM64"), kNoSuchPort);
    EXPECT_EQ(device.open("COM-3"), kNoSuchPort);
    EXPECT_EQ(device.handle(), CommDevice::kNoHandle);
}

TEST_F(CommPosixTest, WhatIsNoTerminalIsRefusedAndNotHeld) {
    EXPECT_EQ(device.open("COM9"), ENOTTY);
    EXPECT_EQ(device.handle(), CommDevice::kNoHandle);
}

TEST_F(CommPosixTest, ASecondObjectFindsThePortInUseAndLeavesTheFirstAlone) {
    openLine();
    PosixCommDevice second{names};
    EXPECT_EQ(second.open("COM7"), kPortInUse);
    const termios settings = line.settings();
    EXPECT_EQ(cfgetospeed(&settings), static_cast<speed_t>(B9600));
    std::size_t transferred = 0;
    EXPECT_EQ(device.write("still here", transferred), kSuccess);
    EXPECT_EQ(line.read(10), "still here");
}

TEST_F(CommPosixTest, AClosedPortIsFreeForOthers) {
    openLine();
    device.close();
    PosixCommDevice second{names};
    EXPECT_EQ(second.open("COM7"), kSuccess);
}

TEST_F(CommPosixTest, ALockOfAnotherProgramIsRespected) {
    const int other = ::open(line.slavePath().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(other, 0);
    ASSERT_EQ(flock(other, LOCK_EX), 0);
    EXPECT_EQ(device.open("COM7"), kPortInUse);
    flock(other, LOCK_UN);
    EXPECT_EQ(device.open("COM7"), kSuccess);
    ::close(other);
}

TEST_F(CommPosixTest, ExclusiveModeOfAnotherProgramIsRespectedEvenByRoot) {
    const int other = ::open(line.slavePath().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(other, 0);
    ASSERT_EQ(ioctl(other, TIOCEXCL), 0);
    EXPECT_EQ(device.open("COM7"), kPortInUse);
    ioctl(other, TIOCNXCL);
    ::close(other);
}

TEST_F(CommPosixTest, TheExclusiveMarkOfAProgramThatIsGoneIsNothing) {
    // A pseudo-terminal keeps the mark until its master closes: a server that was killed must be able to
    // start again. Only a privileged program gets past the mark at all.
    if (geteuid() != 0) {
        GTEST_SKIP() << "the system refuses the mark's device to ordinary users";
    }
    const int gone = ::open(line.slavePath().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(gone, 0);
    ASSERT_EQ(ioctl(gone, TIOCEXCL), 0);
    ::close(gone);
    EXPECT_EQ(device.open("COM7"), kSuccess);
}

TEST_F(CommPosixTest, TheOpenPortIsLockedForOtherPrograms) {
    openLine();
    const int other = ::open(line.slavePath().c_str(), O_RDWR | O_NOCTTY);
    if (other >= 0) {  // only root gets this far
        EXPECT_NE(flock(other, LOCK_EX | LOCK_NB), 0);
        ::close(other);
    }
    int exclusive = 0;
    EXPECT_EQ(ioctl(static_cast<int>(device.handle()), TIOCGEXCL, &exclusive), 0);
    EXPECT_NE(exclusive, 0);
}

TEST_F(CommPosixTest, AMissingPermissionHasItsNumberAndNamesTheGroup) {
    ASSERT_EQ(chmod(line.slavePath().c_str(), 0), 0);
    SystemError error = kSuccess;
    std::string message;
    {
        const test::OrdinaryLogin login;
        error = device.open("COM7");
        message = device.errorMessage(error);
    }
    EXPECT_EQ(error, EACCES);
    EXPECT_EQ(error, 13);
    EXPECT_THAT(message, HasSubstr("No permission to open " + line.slavePath()));
    EXPECT_THAT(message, HasSubstr("group "));
}

TEST_F(CommPosixTest, PurgingDropsWhatWaits) {
    openLine();
    line.write("stale");
    ASSERT_TRUE(waitForInput());
    EXPECT_EQ(device.purge(), kSuccess);
    EXPECT_EQ(waiting(), 0U);
}

TEST_F(CommPosixTest, TheQueueCountFollowsTheBytes) {
    openLine();
    EXPECT_EQ(waiting(), 0U);
    line.write("abcde");
    ASSERT_TRUE(waitForInput());
    EXPECT_EQ(waiting(), 5U);
    EXPECT_EQ(read(3), "abc");
    EXPECT_EQ(waiting(), 2U);
}

TEST_F(CommPosixTest, ReadingAnEmptyLineReturnsAtOnceWithNothing) {
    openLine();
    EXPECT_EQ(read(100), "");
}

TEST_F(CommPosixTest, WithAReadIntervalOfZeroAReadWaitsForItsFirstByte) {
    openLine();
    CommTimeouts timeouts;
    timeouts.readInterval = 0;
    timeouts.readTotalConstant = 20;
    ASSERT_EQ(device.setTimeouts(timeouts), kSuccess);
    char byte = 0;
    std::size_t transferred = 1;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(device.read(&byte, 1, transferred), kSuccess);
    EXPECT_EQ(transferred, 0U);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(20));

    timeouts.readTotalConstant = test::PtyPair::kPatienceMs;
    ASSERT_EQ(device.setTimeouts(timeouts), kSuccess);
    line.write("x");
    EXPECT_EQ(device.read(&byte, 1, transferred), kSuccess);
    EXPECT_EQ(transferred, 1U);
}

TEST_F(CommPosixTest, AHungUpLineIsAnErrorAndNotAnEmptyQueue) {
    openLine();
    line.closeMaster();
    CommStatus status;
    EXPECT_EQ(device.clearError(status), kDeviceFailed);
    std::size_t transferred = 0;
    EXPECT_EQ(device.write("x", transferred), kDeviceFailed);
    EXPECT_EQ(transferred, 0U);
    EXPECT_EQ(device.close(), kSuccess);
}

TEST_F(CommPosixTest, ALineThatNobodyReadsEndsTheWriteInTime) {
    openLine();
    CommTimeouts timeouts;
    timeouts.writeTotalMultiplier = 20;
    ASSERT_EQ(device.setTimeouts(timeouts), kSuccess);
    const std::string large(1 << 20, 'x');
    std::size_t transferred = 0;
    EXPECT_EQ(device.write(large, transferred), ETIMEDOUT);
    EXPECT_GT(transferred, 0U);
    EXPECT_LT(transferred, large.size());
    EXPECT_EQ(device.errorMessage(ETIMEDOUT), "The line did not take the bytes in time");
}

TEST_F(CommPosixTest, AWriteLongerThanTheBufferGoesOutWhileSomebodyReads) {
    openLine();
    std::string large;
    for (int i = 0; i < 50'000; ++i) {
        large += static_cast<char>(i);
    }
    // Each write that finds the buffer full ends early; the reader then makes room, as the wire would.
    CommTimeouts timeouts;
    timeouts.writeTotalMultiplier = 0;
    device.setTimeouts(timeouts);
    std::string received;
    std::string_view rest = large;
    while (received.size() < large.size()) {
        std::size_t transferred = 0;
        device.write(rest, transferred);
        rest.remove_prefix(transferred);
        const std::string part = line.read(std::min<std::size_t>(1000, large.size() - received.size()));
        ASSERT_FALSE(part.empty());
        received += part;
    }
    EXPECT_EQ(received, large);
}

TEST_F(CommPosixTest, ALineWithoutModemLinesSaysSo) {
    openLine();
    std::uint32_t lines = 0;
    EXPECT_NE(device.modemStatus(lines), kSuccess);
    EXPECT_EQ(lines, 0U);
    EXPECT_NE(device.escapeFunction(CommFunction::SetDtr), kSuccess);
    EXPECT_NE(device.escapeFunction(CommFunction::ClearRts), kSuccess);
    EXPECT_EQ(device.escapeFunction(CommFunction::None), kInvalidParameter);
}

TEST_F(CommPosixTest, ALineWithoutModemLinesTakesTheDtrControl) {
    ASSERT_EQ(device.open("COM7"), kSuccess);
    device.getState();
    device.buildState("9600,N,8,1");
    device.setDtrControl(false);
    EXPECT_EQ(device.setState(), kSuccess);
}

TEST_F(CommPosixTest, EveryCallOnAClosedDeviceIsABadHandle) {
    char byte = 0;
    std::size_t transferred = 0;
    std::uint32_t lines = 0;
    CommStatus status;
    EXPECT_EQ(device.setupQueues(1024, 1024), EBADF);
    EXPECT_EQ(device.purge(), EBADF);
    EXPECT_EQ(device.setTimeouts({}), EBADF);
    EXPECT_EQ(device.getState(), EBADF);
    EXPECT_EQ(device.buildState("9600,N,8,1"), kSuccess);
    EXPECT_EQ(device.setState(), EBADF);
    EXPECT_EQ(device.clearError(status), EBADF);
    EXPECT_EQ(device.read(&byte, 1, transferred), EBADF);
    EXPECT_EQ(device.write("x", transferred), EBADF);
    EXPECT_EQ(device.modemStatus(lines), EBADF);
    EXPECT_EQ(device.escapeFunction(CommFunction::SetBreak), EBADF);
    EXPECT_EQ(device.close(), EBADF);
}

TEST_F(CommPosixTest, AFailedTransferHasMovedNothing) {
    char byte = 0;
    std::size_t transferred = 7;
    EXPECT_NE(device.read(&byte, 1, transferred), kSuccess);
    EXPECT_EQ(transferred, 0U);
    transferred = 7;
    EXPECT_NE(device.write("x", transferred), kSuccess);
    EXPECT_EQ(transferred, 0U);
}

TEST_F(CommPosixTest, DestructionGivesTheDeviceBack) {
    {
        PosixCommDevice shortLived{names};
        ASSERT_EQ(shortLived.open("COM7"), kSuccess);
    }
    EXPECT_EQ(device.open("COM7"), kSuccess);
}

TEST_F(CommPosixTest, TheNumbersWithAMeaningOfTheirOwnHaveWordsOfTheirOwn) {
    EXPECT_EQ(device.errorMessage(kNoSuchPort), "There is no such port");
    EXPECT_EQ(device.errorMessage(kPortInUse), "The port is in use");
    EXPECT_EQ(device.errorMessage(kInvalidParameter), "The port does not take these settings");
    EXPECT_EQ(device.errorMessage(kDeviceFailed), "The line was cut or the device failed");
}

}  // namespace
}  // namespace velmora
