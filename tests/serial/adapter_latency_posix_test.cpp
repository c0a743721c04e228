#include <gtest/gtest.h>

#include <filesystem>

#include "serial/adapter_latency.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// A folder that describes terminals as the system's does, and one with device nodes and a link to one.
class LatencyTimerTest : public ::testing::Test {
  protected:
    LatencyTimerTest() {
        folder.makeFolder("dev");
        folder.write("dev/ttyUSB3");
        std::filesystem::create_symlink(folder.path("dev/ttyUSB3"), folder.path("dev/organiser"));
    }
    void timerSays(const std::string& text) const {
        folder.makeFolder("sys/ttyUSB3/device");
        folder.write("sys/ttyUSB3/device/latency_timer", text);
    }
    std::optional<std::chrono::milliseconds> timerOf(const std::string& device) const {
        return latencyTimer(folder.path("dev/" + device), folder.path("sys"));
    }
    test::TempFolder folder;
};

TEST_F(LatencyTimerTest, IsReadByTheDevicesOwnName) {
    timerSays("16\n");
    EXPECT_EQ(timerOf("ttyUSB3"), 16ms);
    EXPECT_EQ(timerOf("organiser"), 16ms) << "a link to it";
}

TEST_F(LatencyTimerTest, ADeviceWithoutATimerHasNone) {
    EXPECT_EQ(timerOf("ttyUSB3"), std::nullopt);
    EXPECT_EQ(timerOf("ttyUSB4"), std::nullopt) << "gone";
    timerSays("");
    EXPECT_EQ(timerOf("ttyUSB3"), std::nullopt);
    timerSays("-1\n");
    EXPECT_EQ(timerOf("ttyUSB3"), std::nullopt);
}

TEST_F(LatencyTimerTest, TheAdviceNamesTheDeviceBehindALink) {
    const std::string advice = latencyAdvice(folder.path("dev/organiser"), 16ms);
    EXPECT_NE(advice.find("/sys/bus/usb-serial/devices/ttyUSB3/latency_timer"), std::string::npos) << advice;
}

}  // namespace
}  // namespace velmora
