#include "serial/low_latency_posix.h"

#include <gtest/gtest.h>
#include <sys/ioctl.h>

namespace velmora {
namespace {

/// A driver with the settings of a serial device.
class Driver {
  public:
    LowLatency::Control control() {
        return [this](unsigned long request, serial_struct& settings) {
            if (!hasSettings || (hidden && request == TIOCGSERIAL)) {
                return -1;
            }
            if (request == TIOCGSERIAL) {
                settings.flags = flags;
                settings.custom_divisor = divisor;
                return 0;
            }
            ++writes;
            if (refuses) {
                return -1;
            }
            if (!ignores) {
                flags = settings.flags;
            }
            divisor = settings.custom_divisor;
            return 0;
        };
    }
    bool lowLatency() const { return (flags & ASYNC_LOW_LATENCY) != 0; }

    bool hasSettings = true;
    bool hidden = false;  ///< they may be set but not be read
    bool refuses = false;
    bool ignores = false;
    int flags = ASYNC_SKIP_TEST;
    int divisor = 7;
    int writes = 0;
};

class LowLatencyTest : public ::testing::Test {
  protected:
    Driver driver;
    LowLatency latency;
};

TEST_F(LowLatencyTest, IsSetWhileTheDeviceIsOpenAndGivenBack) {
    latency.take(driver.control());
    EXPECT_TRUE(driver.lowLatency());
    EXPECT_TRUE(latency.taken());
    latency.giveBack(driver.control());
    EXPECT_EQ(driver.flags, ASYNC_SKIP_TEST);
    EXPECT_EQ(driver.divisor, 7);
    EXPECT_FALSE(latency.taken());
}

TEST_F(LowLatencyTest, ADeviceThatIsGoneIsNotGivenBackTo) {
    latency.take(driver.control());
    const int writes = driver.writes;
    driver.hasSettings = false;
    latency.giveBack(driver.control());
    EXPECT_EQ(driver.writes, writes);
    EXPECT_FALSE(latency.taken());
}

TEST_F(LowLatencyTest, SettingsThatCannotBeReadAreNotOverwritten) {
    driver.hidden = true;
    latency.take(driver.control());
    EXPECT_EQ(driver.writes, 0);
    EXPECT_FALSE(latency.taken());
}

TEST_F(LowLatencyTest, WhatWasSetBeforeStaysSet) {
    driver.flags |= ASYNC_LOW_LATENCY;
    latency.take(driver.control());
    EXPECT_TRUE(latency.taken());
    latency.giveBack(driver.control());
    EXPECT_TRUE(driver.lowLatency());
    EXPECT_EQ(driver.writes, 0);
}

TEST_F(LowLatencyTest, OtherSettingsThatWereChangedMeanwhileStay) {
    latency.take(driver.control());
    driver.divisor = 9;
    latency.giveBack(driver.control());
    EXPECT_EQ(driver.divisor, 9);
    EXPECT_FALSE(driver.lowLatency());
}

TEST_F(LowLatencyTest, ADriverWithoutItIsLeftAlone) {
    driver.hasSettings = false;
    latency.take(driver.control());
    EXPECT_FALSE(latency.taken());
    latency.giveBack(driver.control());
    EXPECT_EQ(driver.writes, 0);
}

TEST_F(LowLatencyTest, ADriverThatRefusesOrIgnoresItHasNotTakenIt) {
    for (bool Driver::*no : {&Driver::refuses, &Driver::ignores}) {
        driver.*no = true;
        driver.writes = 0;
        latency.take(driver.control());
        EXPECT_FALSE(latency.taken());
        latency.giveBack(driver.control());
        EXPECT_EQ(driver.writes, 1) << "nothing to give back";
        driver.*no = false;
    }
}

}  // namespace
}  // namespace velmora
