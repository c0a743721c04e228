#include "serial/device_path_win32.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(DevicePathTest, ANameGetsThePrefixAndAPathKeepsItsOwn) {
    EXPECT_EQ(devicePath("COM12"), R"(\\.\COM12)");
    EXPECT_EQ(devicePath("VIRT0"), R"(\\.\VIRT0)");
    EXPECT_EQ(devicePath(R"(\\.\COM12)"), R"(\\.\COM12)");
    EXPECT_EQ(devicePath(R"(\\?\usb#vid_1234)"), R"(\\?\usb#vid_1234)");
}

TEST(DevicePathTest, ThePrefixIsTakenOffWhicheverItIs) {
    EXPECT_EQ(deviceName("COM12"), "COM12");
    EXPECT_EQ(deviceName(R"(\\.\VIRT0)"), "VIRT0");
    EXPECT_EQ(deviceName(R"(\\?\VIRT0)"), "VIRT0");
    EXPECT_EQ(deviceName(R"(\\.\)"), "");
    EXPECT_EQ(deviceName(R"(no\such)"), R"(no\such)");
}

}  // namespace
}  // namespace velmora
