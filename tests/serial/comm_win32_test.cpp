#include "serial/comm_win32.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "serial/comm_plain.h"
#include "support/com_ports.h"
#include "support/no_yield.h"

namespace velmora {
namespace {

using ::testing::AnyOf;

/// The block's flag word, between the rate and the reserved word.
std::uint32_t flagWord(const DCB& block) {
    std::uint32_t word = 0;
    std::memcpy(&word, reinterpret_cast<const char*>(&block) + 2 * sizeof(DWORD), sizeof word);
    return word;
}

constexpr std::uint32_t kDtrBits = 0x30;

TEST(CommWin32DeviceTest, EveryCallOnAClosedDeviceIsABadHandle) {
    const PortNames names;
    Win32CommDevice device{names};
    char byte = 0;
    std::size_t transferred = 0;
    std::uint32_t lines = 0;
    CommStatus status;
    EXPECT_EQ(device.handle(), CommDevice::kNoHandle);
    EXPECT_EQ(device.setupQueues(1024, 1024), ERROR_INVALID_HANDLE);
    EXPECT_EQ(device.purge(), ERROR_INVALID_HANDLE);
    EXPECT_EQ(device.setTimeouts({}), ERROR_INVALID_HANDLE);
    EXPECT_EQ(device.getState(), ERROR_INVALID_HANDLE);
    EXPECT_EQ(device.setState(), ERROR_INVALID_HANDLE);
    EXPECT_EQ(device.settingsInUse(), std::nullopt);
    EXPECT_EQ(device.clearError(status), ERROR_INVALID_HANDLE);
    EXPECT_EQ(device.read(&byte, 1, transferred), ERROR_INVALID_HANDLE);
    EXPECT_EQ(device.write("x", transferred), ERROR_INVALID_HANDLE);
    EXPECT_EQ(device.modemStatus(lines), ERROR_INVALID_HANDLE);
    EXPECT_EQ(device.escapeFunction(CommFunction::SetBreak), ERROR_INVALID_HANDLE);
    EXPECT_EQ(device.close(), ERROR_INVALID_HANDLE);
}

TEST(CommWin32DeviceTest, MissingPortsAndTextsThatAreNoneAreNoSuchPort) {
    const PortNames names(PortNames::Overrides{{"COM300", R"(no\such\device)"}});
    Win32CommDevice device{names};
    for (const char* const name : {"COM255", "COM32767", "COM0", "COM-3", "C:", "COM300"}) {
        EXPECT_EQ(device.open(name), kNoSuchPort) << name;
    }
    EXPECT_EQ(device.handle(), CommDevice::kNoHandle);
}

TEST(CommWin32DeviceTest, AModeStringSetsItsFieldsAndOnlyBadOnesAreRefused) {
    const PortNames names;
    Win32CommDevice device{names};
    device.getState();
    EXPECT_EQ(device.buildState("2400,E,7,2"), kSuccess);
    EXPECT_EQ(device.controlBlock().BaudRate, 2400U);
    EXPECT_EQ(device.controlBlock().ByteSize, 7);
    EXPECT_EQ(device.controlBlock().Parity, EVENPARITY);
    EXPECT_EQ(device.controlBlock().StopBits, TWOSTOPBITS);
    EXPECT_EQ(device.controlBlock().DCBlength, sizeof(DCB));
    for (const char* const settings : {"fast", "9600,N,9,1", "9600,N,8,9", "9600,X,8,1"}) {
        EXPECT_EQ(device.buildState(settings), kInvalidParameter) << settings;
    }
}

TEST(CommWin32DeviceTest, DtrControlIsTheLowBitOfItsFieldAndTouchesNothingElse) {
    const PortNames names;
    Win32CommDevice device{names};
    device.getState();
    ASSERT_EQ(device.buildState("9600,N,8,1"), kSuccess);
    const std::uint32_t others = flagWord(device.controlBlock()) & ~kDtrBits;
    device.setDtrControl(true);
    EXPECT_EQ(flagWord(device.controlBlock()), others | 0x10U);
    device.setDtrControl(false);
    EXPECT_EQ(flagWord(device.controlBlock()), others);
}

TEST(CommWin32DeviceTest, MessagesAreTheSystems) {
    const PortNames names;
    const Win32CommDevice device{names};
    EXPECT_NE(device.errorMessage(kPortInUse), "");
    EXPECT_NE(device.errorMessage(kPortInUse), device.errorMessage(kNoSuchPort));
    EXPECT_EQ(device.errorMessage(kPortInUse).find_first_of("\r\n"), std::string::npos);
    EXPECT_EQ(device.errorMessage(987'654'321), "");
}

/// Two devices at the ends of a cable.
class CommWin32Test : public ::testing::Test {
  protected:
    void SetUp() override {
        if (ports.port.empty() || ports.farPort.empty()) {
            GTEST_SKIP() << "no ports are named for this test";
        }
        openLine(device, ports.port);
        openLine(farEnd, ports.farPort);
    }
    static void openLine(Win32CommDevice& end, const std::string& name) {
        ASSERT_EQ(end.open(name), kSuccess);
        ASSERT_EQ(end.setupQueues(1024, 1024), kSuccess);
        ASSERT_EQ(end.purge(), kSuccess);
        ASSERT_EQ(end.setTimeouts({}), kSuccess);
        ASSERT_EQ(end.getState(), kSuccess);
        ASSERT_EQ(end.buildState("9600,N,8,1"), kSuccess);
        end.setDtrControl(true);
        ASSERT_EQ(end.setState(), kSuccess);
    }
    static std::string read(Win32CommDevice& end, std::size_t count) {
        std::string buffer(count, '\0');
        std::size_t transferred = 0;
        EXPECT_EQ(end.read(buffer.data(), count, transferred), kSuccess);
        buffer.resize(transferred);
        return buffer;
    }
    static void send(Win32CommDevice& end, const std::string& bytes) {
        std::size_t transferred = 0;
        EXPECT_EQ(end.write(bytes, transferred), kSuccess);
        EXPECT_EQ(transferred, bytes.size());
    }
    static std::size_t waiting(Win32CommDevice& end) {
        CommStatus status;
        EXPECT_EQ(end.clearError(status), kSuccess);
        return status.inQueue;
    }

    test::ComPorts ports;
    PortNames names;
    Win32CommDevice device{names};
    Win32CommDevice farEnd{names};
};

TEST_F(CommWin32Test, BytesPassUnchangedInBothDirections) {
    std::string every;
    for (int code = 0; code < 256; ++code) {
        every += static_cast<char>(code);
    }
    send(device, every);
    ASSERT_TRUE(test::waitForInput(farEnd, every.size()));
    EXPECT_EQ(read(farEnd, every.size()), every);
    send(farEnd, every);
    ASSERT_TRUE(test::waitForInput(device, every.size()));
    EXPECT_EQ(read(device, every.size()), every);
}

TEST_F(CommWin32Test, TheQueueCountFollowsTheBytes) {
    EXPECT_EQ(waiting(device), 0U);
    send(farEnd, "abcde");
    ASSERT_TRUE(test::waitForInput(device, 5));
    EXPECT_EQ(waiting(device), 5U);
    EXPECT_EQ(read(device, 3), "abc");
    EXPECT_EQ(waiting(device), 2U);
    EXPECT_EQ(read(device, 2), "de");
}

TEST_F(CommWin32Test, PurgingDropsWhatWaits) {
    send(farEnd, "stale");
    ASSERT_TRUE(test::waitForInput(device, 5));
    EXPECT_EQ(device.purge(), kSuccess);
    EXPECT_EQ(waiting(device), 0U);
}

TEST_F(CommWin32Test, TheStateIsWhatWasSet) {
    ASSERT_EQ(device.buildState("1200,N,8,1"), kSuccess);
    ASSERT_EQ(device.setState(), kSuccess);
    ASSERT_EQ(device.getState(), kSuccess);
    EXPECT_EQ(device.controlBlock().BaudRate, 1200U);
    EXPECT_EQ(device.controlBlock().ByteSize, 8);
    EXPECT_EQ(device.controlBlock().Parity, NOPARITY);
    EXPECT_EQ(device.settingsInUse(), LineSettings{1200});
}

TEST_F(CommWin32Test, TheLineTakesDtrOffAsItTakesDtrOn) {
    ASSERT_EQ(device.getState(), kSuccess);
    ASSERT_EQ(device.buildState("9600,N,8,1"), kSuccess);
    device.setDtrControl(false);
    EXPECT_EQ(device.setState(), kSuccess);
    send(device, "dark");
    EXPECT_TRUE(test::waitForInput(farEnd, 4));
}

TEST_F(CommWin32Test, ModemLinesAreReadOrTheFailureSaysThatThereAreNone) {
    std::uint32_t lines = 0;
    EXPECT_THAT(device.modemStatus(lines), AnyOf(kSuccess, ERROR_NOT_SUPPORTED, ERROR_INVALID_FUNCTION));
    EXPECT_THAT(device.escapeFunction(CommFunction::SetRts),
                AnyOf(kSuccess, ERROR_NOT_SUPPORTED, ERROR_INVALID_FUNCTION));
    EXPECT_EQ(device.escapeFunction(CommFunction::None), kInvalidParameter);
}

TEST_F(CommWin32Test, OpeningGivesTheDriverTheTimeOutsAndTheDtrState) {
    device.close();
    test::NoYield yield;
    for (const bool dtr : {false, true}) {
        PlainComm plain(device, yield);
        ASSERT_EQ(plain.CommOpen(ports.port, "9600,N,8,1", dtr), kSuccess);
        COMMTIMEOUTS timeouts{};
        ASSERT_NE(GetCommTimeouts(reinterpret_cast<HANDLE>(plain.handle()), &timeouts), FALSE);
        EXPECT_EQ(timeouts.ReadIntervalTimeout, 0xFFFFFFFFU);
        EXPECT_EQ(timeouts.ReadTotalTimeoutMultiplier, 0U);
        EXPECT_EQ(timeouts.ReadTotalTimeoutConstant, 1000U);
        EXPECT_EQ(timeouts.WriteTotalTimeoutMultiplier, 1000U);
        EXPECT_EQ(timeouts.WriteTotalTimeoutConstant, 0U);
        EXPECT_EQ(device.controlBlock().fDtrControl, dtr ? DTR_CONTROL_ENABLE : DTR_CONTROL_DISABLE) << dtr;
        EXPECT_EQ(plain.CommClose(), kSuccess);
    }
}

TEST_F(CommWin32Test, AClosedPortIsFreeForOthers) {
    EXPECT_EQ(device.close(), kSuccess);
    EXPECT_EQ(device.handle(), CommDevice::kNoHandle);
    Win32CommDevice second{names};
    EXPECT_EQ(second.open(ports.port), kSuccess);
}

TEST_F(CommWin32Test, ASecondObjectFindsThePortInUseAndLeavesTheFirstAlone) {
    if (!test::portsAreExclusive()) {
        GTEST_SKIP() << "Wine lets several programs open a port";
    }
    Win32CommDevice second{names};
    EXPECT_EQ(second.open(ports.port), kPortInUse);
    send(device, "still here");
    EXPECT_TRUE(test::waitForInput(farEnd, 10));
}

TEST_F(CommWin32Test, APortOfAnotherProgramIsInUse) {
    if (ports.held.empty()) {
        GTEST_SKIP() << "no port that another program holds";
    }
    Win32CommDevice other{names};
    EXPECT_EQ(other.open(ports.held), kPortInUse);
    EXPECT_EQ(other.handle(), CommDevice::kNoHandle);
}

TEST_F(CommWin32Test, ADeviceCalledOtherwiseIsOpenedUnderTheNumberItWasGiven) {
    device.close();
    const PortNames given(PortNames::Overrides{{"COM200", R"(\\.\)" + ports.port}, {"COM201", ports.port}});
    Win32CommDevice other{given};
    EXPECT_EQ(other.open("COM200"), kSuccess);
    EXPECT_EQ(other.open("COM201"), kSuccess);
}

}  // namespace
}  // namespace velmora
