#include <gtest/gtest.h>

#include "serial/device_facts.h"
#include "serial/open_diagnosis.h"
#include "serial/serial_port.h"
#include "support/com_ports.h"

namespace velmora {
namespace {

TEST(DeviceFactsWin32Test, AMissingPortDoesNotExist) {
    const DeviceFacts facts = gatherDeviceFacts("COM4000");
    EXPECT_FALSE(facts.exists);
    EXPECT_FALSE(facts.mayOpen);
}

TEST(DeviceFactsWin32Test, WhatExistsMayBeOpenedAndHasNoOwners) {
    // The one device that every system has.
    const DeviceFacts facts = gatherDeviceFacts("NUL");
    EXPECT_TRUE(facts.exists);
    EXPECT_TRUE(facts.mayOpen);
    EXPECT_EQ(facts.owner, "");
    EXPECT_EQ(facts.group, "");
}

TEST(DeviceFactsWin32Test, APrefixMakesNoOtherDevice) {
    EXPECT_TRUE(gatherDeviceFacts(R"(\\.\NUL)").exists);
    EXPECT_TRUE(gatherDeviceFacts(R"(\\?\NUL)").exists);
    EXPECT_FALSE(gatherDeviceFacts(R"(\\.\COM4000)").exists);
}

TEST(DeviceFactsWin32Test, TheHolderOfAPortIsUnknown) {
    EXPECT_EQ(findHolder("NUL"), "");
}

TEST(DeviceFactsWin32Test, APortIsFoundByItsName) {
    const test::ComPorts ports;
    if (ports.port.empty()) {
        GTEST_SKIP() << "no port is named for this test";
    }
    EXPECT_TRUE(gatherDeviceFacts(ports.port).exists);
}

TEST(DeviceFactsWin32Test, AMissingPortIsToldToBeMissing) {
    const test::ComPorts ports;
    if (ports.missing.empty()) {
        GTEST_SKIP() << "no missing port is named for this test";
    }
    EXPECT_FALSE(gatherDeviceFacts(ports.missing).exists);
    EXPECT_EQ(describeOpenFailure(ports.missing, kCommInvalidPort),
              ports.missing + " does not exist; is the adapter plugged in, and is it the right port?");
}

TEST(DeviceFactsWin32Test, AHeldPortIsToldToBeInUse) {
    const test::ComPorts ports;
    if (ports.held.empty()) {
        GTEST_SKIP() << "no port that another program holds is named for this test";
    }
    EXPECT_EQ(describeOpenFailure(ports.held, kCommAlreadyOpen),
              ports.held + " is in use by another program.");
}

}  // namespace
}  // namespace velmora
