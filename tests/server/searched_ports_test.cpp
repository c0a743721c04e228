#include "server/searched_ports.h"

#include <gtest/gtest.h>

#include "support/scripted_adapters.h"

namespace velmora {
namespace {

using test::usbDevice;

class SearchedPortsTest : public testing::Test {
  protected:
    bool anyNew() { return searched.look() == PortPresence::Present; }

    PortNames names{{{"COM64", "/dev/last"}, {"COM65", "/dev/behind"}}};
    test::ScriptedAdapters adapters{names};
    SearchedPorts searched{names, [this](const std::string& device) { return adapters.facts(device); }};
};

TEST_F(SearchedPortsTest, WhatIsThereAtFirstIsNewOnce) {
    adapters.plug(usbDevice(0), "A");
    EXPECT_TRUE(anyNew());
    EXPECT_FALSE(anyNew());
}

TEST_F(SearchedPortsTest, OneMoreIsNewAndOneLessIsNot) {
    adapters.plug(usbDevice(0), "A");
    anyNew();
    adapters.plug(usbDevice(1), "B", "socket-2");
    EXPECT_TRUE(anyNew());
    adapters.pull(usbDevice(0));
    EXPECT_FALSE(anyNew());
    adapters.plug(usbDevice(0), "A");
    EXPECT_TRUE(anyNew()) << "it came back";
}

TEST_F(SearchedPortsTest, APermissionThatComesLateMakesAPortNew) {
    adapters.plug(usbDevice(0), "A");
    adapters.permit(usbDevice(0), false);
    EXPECT_FALSE(anyNew());
    adapters.permit(usbDevice(0), true);
    EXPECT_TRUE(anyNew());
}

TEST_F(SearchedPortsTest, DevicesThatAreNamedInTheConfigurationCountUpToTheLastNumber) {
    adapters.makeDevice("/dev/behind");
    EXPECT_FALSE(anyNew());
    adapters.makeDevice("/dev/last");
    EXPECT_TRUE(anyNew());
}

}  // namespace
}  // namespace velmora
