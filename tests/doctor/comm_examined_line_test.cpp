#include "doctor/comm_examined_line.h"

#include <gtest/gtest.h>

#include <chrono>

#include "support/fake_comm_device.h"
#include "support/no_yield.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

class CommExaminedLineTest : public testing::Test {
  protected:
    void openIt() { ASSERT_EQ(line.open(LineSettings()), kSuccess); }

    test::FakeCommDevice device;
    test::NoYield yield;
    std::chrono::microseconds time{0};
    CommExaminedLine line{device, "COM7", "/dev/ttyUSB2", yield, [this] { return time += 10ms; }};
};

TEST_F(CommExaminedLineTest, OpensWithTheSettingsAndDtr) {
    openIt();
    EXPECT_EQ(device.openedName, "COM7");
    EXPECT_EQ(device.settings, "9600,N,8,1");
    EXPECT_TRUE(device.called("setDtrControl on"));
}

TEST_F(CommExaminedLineTest, TellsWhyItDoesNotOpen) {
    device.errors["open"] = kPortInUse;
    EXPECT_EQ(line.open(LineSettings()), kPortInUse);
}

TEST_F(CommExaminedLineTest, OtherSettingsDropWhatWaits) {
    openIt();
    device.calls.clear();
    EXPECT_TRUE(line.use({1200, Parity::Even, 7, StopBits::Two}));
    EXPECT_EQ(device.settings, "1200,E,7,2");
    EXPECT_TRUE(device.called("purge"));
    device.errors["setState"] = kInvalidParameter;
    EXPECT_FALSE(line.use(LineSettings()));
}

TEST_F(CommExaminedLineTest, ModemLinesAreThereOrNot) {
    openIt();
    device.modemLines = kCtsOn;
    EXPECT_EQ(line.modemLines(), kCtsOn);
    device.errors["modemStatus"] = 25;
    EXPECT_EQ(line.modemLines(), std::nullopt);
    EXPECT_EQ(line.settingsInUse(), std::nullopt);
}

TEST_F(CommExaminedLineTest, BytesGoOutAndComeInWithTheirErrors) {
    openIt();
    line.write("out");
    EXPECT_EQ(device.sent, "out");
    device.input = "in";
    device.errorFlags = 8;
    const LineInput input = line.read(1s);
    EXPECT_EQ(input.bytes, "in");
    EXPECT_EQ(input.errorFlags, 8U);
    EXPECT_GT(line.now(), 0us);
}

TEST_F(CommExaminedLineTest, ALostDeviceIsTold) {
    openIt();
    device.errors["clearError"] = kDeviceFailed;
    EXPECT_THROW(line.read(1s), LineLost);
    device.errors["write"] = kDeviceFailed;
    EXPECT_THROW(line.write("out"), LineLost);
}

TEST_F(CommExaminedLineTest, ALineThatTakesNoBytesIsTold) {
    class FullDevice : public test::FakeCommDevice {
        SystemError write(std::string_view, std::size_t& transferred) override {
            transferred = 1;
            return kSuccess;
        }
    };
    FullDevice full;
    CommExaminedLine held(full, "COM7", "/dev/ttyUSB2", yield, [] { return 0us; });
    ASSERT_EQ(held.open(LineSettings()), kSuccess);
    try {
        held.write("two");
        FAIL();
    } catch (const LineLost& lost) {
        EXPECT_STREQ(lost.what(), "/dev/ttyUSB2: The line did not take the bytes in time.");
    }
}

}  // namespace
}  // namespace velmora
