#include "serial/waiting_reader.h"

#include <gtest/gtest.h>

#include <chrono>

#include "support/fake_comm_device.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

class WaitingReaderTest : public testing::Test {
  protected:
    WaitingReaderTest() {
        device.isOpen = true;
        timeouts.readInterval = 0;
    }
    /// Every look at the clock takes ten milliseconds.
    WaitingReader reader() {
        return {device, timeouts, [this] { return now += 10ms; }, 50ms, [this] { ++breaths; }};
    }

    test::FakeCommDevice device;
    CommTimeouts timeouts;
    std::chrono::microseconds now{0};
    int breaths = 0;
};

TEST_F(WaitingReaderTest, TakesWhatWaitsWithoutWaiting) {
    device.input = "waiting";
    device.errorFlags = 8;
    const WaitedBytes got = reader().read(0us);
    EXPECT_EQ(got.error, kSuccess);
    EXPECT_EQ(got.bytes, "waiting");
    EXPECT_EQ(got.errorFlags, 8U);
    EXPECT_FALSE(device.called("setTimeouts"));
}

TEST_F(WaitingReaderTest, WaitsInPiecesThatLetOthersRun) {
    const WaitedBytes got = reader().read(100ms);
    EXPECT_TRUE(got.bytes.empty());
    EXPECT_GT(breaths, 1);
    EXPECT_LE(device.timeouts.readTotalConstant, 50U);
    EXPECT_EQ(device.timeouts.readInterval, 0U);
}

/// A device whose first look at its queue comes before the bytes.
class LateDevice : public test::FakeCommDevice {
  public:
    SystemError clearError(CommStatus& status) override {
        const SystemError error = FakeCommDevice::clearError(status);
        if (!looked_) {
            looked_ = true;
            status.inQueue = 0;
        }
        return error;
    }

  private:
    bool looked_ = false;
};

TEST(WaitingReaderLateTest, AByteThatIsWaitedForBringsThoseThatCameWithIt) {
    LateDevice device;
    device.isOpen = true;
    device.input = "late";
    std::chrono::microseconds now{0};
    WaitingReader reader(
        device, CommTimeouts(), [&now] { return now; }, 50ms);
    EXPECT_EQ(reader.read(1s).bytes, "late");
}

TEST_F(WaitingReaderTest, EachFailureIsTold) {
    for (const char* call : {"clearError", "setTimeouts", "read"}) {
        device.errors = {{call, 31}};
        EXPECT_EQ(reader().read(now + 100ms).error, 31) << call;
    }
}

}  // namespace
}  // namespace velmora
