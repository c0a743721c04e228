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

TEST(DeviceFactsWin32Test, TheHolderOfAPortIsUnknown) {
    EXPECT_EQ(findHolder("NUL"), "");
}

TEST(DeviceFactsWin32Test, APortIsFoundByItsName) {
    const test::ComPorts ports;
    if (ports.port.empty()) {
        GTEST_SKIP() << "no ports are named for this test";
    }
    EXPECT_TRUE(gatherDeviceFacts(ports.port).exists);
    EXPECT_FALSE(gatherDeviceFacts(ports.missing).exists);
    EXPECT_EQ(describeOpenFailure(ports.missing, kCommInvalidPort),
              ports.missing + " does not exist; is the adapter plugged in, and is it the right port?");
    EXPECT_EQ(describeOpenFailure(ports.held, kCommAlreadyOpen),
              ports.held + " is in use by another program.");
}

}  // namespace
}  // namespace velmora
