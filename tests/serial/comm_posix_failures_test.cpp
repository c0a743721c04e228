// What a port makes of system calls that fail or are interrupted.
#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "serial/comm_posix.h"
#include "serial/port_names.h"
#include "support/failing_terminal_calls.h"
#include "support/pty_pair.h"

namespace velmora {
namespace {

using test::FailingCall;

class CommPosixFailuresTest : public ::testing::Test {
  protected:
    void openLine() {
        ASSERT_EQ(device.open("COM7"), kSuccess);
        ASSERT_EQ(apply(), kSuccess);
    }
    /// Sets the line up anew.
    SystemError apply() {
        device.getState();
        device.buildState("9600,N,8,1");
        return device.setState();
    }
    /// How opening ends when the system refuses it.
    SystemError openRefused(int error) {
        const FailingCall open("open", error);
        return device.open("COM7");
    }

    test::PtyPair line;
    PortNames names{PortNames::Overrides{{"COM7", line.slavePath()}, {"COM8", "/dev/null/x"}}};
    PosixCommDevice device{names};
};

// Opening.

TEST_F(CommPosixFailuresTest, ASignalThatInterruptsOpeningDoesNoHarm) {
    const FailingCall open("open", EINTR, 2);
    EXPECT_EQ(device.open("COM7"), kSuccess);
}

TEST_F(CommPosixFailuresTest, WhatHasNoDeviceBehindItIsNoSuchPort) {
    EXPECT_EQ(device.open("COM8"), kNoSuchPort) << "a path through a file";
    EXPECT_EQ(openRefused(ENODEV), kNoSuchPort);
    EXPECT_EQ(openRefused(ENXIO), kNoSuchPort);
}

TEST_F(CommPosixFailuresTest, ADriverWithoutHardwareIsNoSuchPortAndNotHeld) {
    const FailingCall settings("tcgetattr", EIO);
    EXPECT_EQ(device.open("COM7"), kNoSuchPort);
    EXPECT_EQ(device.handle(), CommDevice::kNoHandle);
}

TEST_F(CommPosixFailuresTest, ADeviceThatAnotherProgramHoldsIsInUse) {
    EXPECT_EQ(openRefused(EBUSY), kPortInUse);
}

TEST_F(CommPosixFailuresTest, ADeviceThatNobodyIsLetIntoIsAMissingPermission) {
    EXPECT_EQ(openRefused(EPERM), EACCES);
}

TEST_F(CommPosixFailuresTest, AnyOtherReasonHasTheSystemsWords) {
    EXPECT_EQ(openRefused(ENOMEM), ENOMEM);
    EXPECT_EQ(device.errorMessage(ENOMEM), "Cannot allocate memory");
    EXPECT_EQ(device.errorMessage(ENOTTY), "The device has no such function");
}

// Settings.

TEST_F(CommPosixFailuresTest, SettingsThatTheDriverRefusesAreInvalid) {
    openLine();
    const FailingCall set("tcsetattr", EINVAL);
    EXPECT_EQ(apply(), kInvalidParameter);
}

TEST_F(CommPosixFailuresTest, ADeviceThatFailsWhileItIsSetUpHasFailed) {
    openLine();
    {
        const FailingCall set("tcsetattr", EIO);
        EXPECT_EQ(apply(), kDeviceFailed);
    }
    const FailingCall readBack("tcgetattr", EIO, 1, 1);
    EXPECT_EQ(apply(), kDeviceFailed);
}

TEST_F(CommPosixFailuresTest, ADriverThatKeepsItsRateIsToldAsInvalidSettings) {
    openLine();
    device.getState();
    device.buildState("19200,N,8,1");
    // The call succeeds and changes nothing.
    const FailingCall set("tcsetattr", 0);
    EXPECT_EQ(device.setState(), kInvalidParameter);
}

// Transfers.

TEST_F(CommPosixFailuresTest, InterruptedTransfersGoOn) {
    openLine();
    std::size_t transferred = 0;
    const FailingCall write("write", EINTR, 2);
    EXPECT_EQ(device.write("hello", transferred), kSuccess);
    EXPECT_EQ(line.read(5), "hello");
    line.write("x");
    ASSERT_TRUE(test::PtyPair::waitReadable(static_cast<int>(device.handle())));
    const FailingCall read("read", EINTR, 2);
    char byte = 0;
    EXPECT_EQ(device.read(&byte, 1, transferred), kSuccess);
    EXPECT_EQ(transferred, 1U);
    EXPECT_EQ(byte, 'x');
}

TEST_F(CommPosixFailuresTest, AnEmptyLineIsNoError) {
    openLine();
    const FailingCall read("read", EAGAIN);
    char byte = 0;
    std::size_t transferred = 7;
    EXPECT_EQ(device.read(&byte, 1, transferred), kSuccess);
    EXPECT_EQ(transferred, 0U);
}

TEST_F(CommPosixFailuresTest, ADriverThatHasNoRoomForAMomentGetsTheBytesOnceItHas) {
    openLine();
    const FailingCall busy("write", EAGAIN, 2);
    const FailingCall nothing("write", 0, 2);
    std::size_t transferred = 0;
    EXPECT_EQ(device.write("hello", transferred), kSuccess);
    EXPECT_EQ(transferred, 5U);
    EXPECT_EQ(line.read(5), "hello");
}

TEST_F(CommPosixFailuresTest, ALineThatIsCutWhileItHasNoRoomHasFailed) {
    openLine();
    line.closeMaster();
    const FailingCall busy("write", EAGAIN);
    std::size_t transferred = 0;
    EXPECT_EQ(device.write("hello", transferred), kDeviceFailed);
    EXPECT_EQ(transferred, 0U);
}

}  // namespace
}  // namespace velmora
