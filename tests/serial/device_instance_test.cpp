#include "serial/device_instance.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

std::string partsOf(std::string_view instance) {
    const InstanceParts parts = instanceParts(instance);
    return parts.vendorId + "|" + parts.productId + "|" + parts.serial;
}

TEST(DeviceInstanceTest, ASerialNumberStandsLast) {
    EXPECT_EQ(partsOf(R"(USB\VID_10C4&PID_EA60\0001)"), "10c4|ea60|0001");
}

TEST(DeviceInstanceTest, WhatTheSystemMadeFromTheSocketIsNoSerialNumber) {
    EXPECT_EQ(partsOf(R"(USB\VID_1A86&PID_7523\5&3753427A&0&2)"), "1a86|7523|");
    EXPECT_EQ(partsOf(R"(USB\VID_10C4&PID_EA70&MI_00\6&1a2b&0&0000)"), "10c4|ea70|");
}

TEST(DeviceInstanceTest, ALetteredSerialNumberLosesItsLetter) {
    EXPECT_EQ(partsOf(R"(FTDIBUS\VID_0403+PID_6001+A50285BIA\0000)"), "0403|6001|A50285BI");
    EXPECT_EQ(partsOf(R"(FTDIBUS\VID_0403+PID_6001+5&2eb35f7c&0&7\0000)"), "0403|6001|");
    EXPECT_EQ(partsOf(R"(FTDIBUS\VID_0403+PID_6001\0000)"), "0403|6001|");
    EXPECT_EQ(partsOf(R"(FTDIBUS\VID_0403+PID_6001+A\0000)"), "0403|6001|");
    EXPECT_EQ(partsOf(R"(FTDIBUS\VID_0403&PID_6001\0000)"), "0403|6001|");
}

TEST(DeviceInstanceTest, OtherInstancesHaveNothing) {
    for (const char* instance :
         {"", R"(ACPI\PNP0501\1)", R"(USB\VID_10C4&PID_EA60)", R"(USB\VID_1&PID_2\3)"}) {
        EXPECT_EQ(partsOf(instance), "||") << instance;
    }
}

}  // namespace
}  // namespace velmora
