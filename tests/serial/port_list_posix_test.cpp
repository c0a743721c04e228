// What the device manager's library tells of terminals, and which of them are ports.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <vector>

#include "serial/port_list.h"
#include "support/failing_call.h"
#include "support/temp_folder.h"
#include "support/udev_tree.h"

namespace velmora {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

class PortListPosixTest : public ::testing::Test {
  protected:
    PortListPosixTest() { tree = {}; }
    ~PortListPosixTest() override {
        EXPECT_EQ(tree.held, 0) << "what the library gave is given back";
        tree = {};
    }
    udev_device* add(udev_device device) {
        tree.devices.push_back(std::move(device));
        return &tree.devices.back();
    }
    /// A terminal with a device file, whose devices above it are given.
    udev_device* addTerminal(const std::string& name, udev_device* parent) {
        udev_device* terminal = add({"/sys/" + name, name, "tty", {}, parent});
        terminal->node = folder.write(name);
        return terminal;
    }
    /// The devices above the terminal of an adapter.
    udev_device* addAdapter() {
        udev_device* adapter = add({"/sys/1-2", "1-2", "usb", "usb_device"});
        adapter->driver = "usb";
        adapter->attributes = {{"idVendor", "0403"},
                               {"idProduct", "6001"},
                               {"serial", "A50285BI"},
                               {"manufacturer", "FTDI"},
                               {"product", "FT232R USB UART"}};
        udev_device* interface = add({"/sys/1-2:1.0", "1-2:1.0", "usb", "usb_interface", adapter});
        interface->driver = "ftdi_sio";
        return interface;
    }
    std::vector<PortIdentity> list(Holders holders = Holders::NotAsked) {
        PortNames names;
        return listPorts(names, holders);
    }

    test::UdevTree& tree = test::udevTree();
    test::TempFolder folder;
};

TEST_F(PortListPosixTest, AnAdapterIsToldByTheDevicesAboveItsTerminal) {
    udev_device* terminal = addTerminal("ttyUSB0", addAdapter());
    test::append(terminal->links, "/dev/serial/by-path/pci-usb-0:2:1.0-port0");
    test::append(terminal->links, "/dev/serial/by-id/usb-FTDI-if00-port0");
    const auto ports = list();
    ASSERT_THAT(ports, SizeIs(1));
    EXPECT_EQ(ports[0].device, folder.path("ttyUSB0"));
    EXPECT_EQ(ports[0].vendorId + ":" + ports[0].productId + ":" + ports[0].serial, "0403:6001:A50285BI");
    EXPECT_EQ(ports[0].maker, "FTDI");
    EXPECT_EQ(ports[0].product, "FT232R USB UART");
    EXPECT_EQ(ports[0].driver, "ftdi_sio");
    EXPECT_EQ(ports[0].socket, "usb-1-2:1.0");
    EXPECT_EQ(ports[0].stableName, "/dev/serial/by-id/usb-FTDI-if00-port0");
}

TEST_F(PortListPosixTest, TheDeviceManagersPathSaysWhichSocketItIs) {
    addTerminal("ttyUSB0", addAdapter())->properties["ID_PATH"] = "pci-0000:00:14.0-usb-0:2:1.0";
    EXPECT_EQ(list()[0].socket, "pci-0000:00:14.0-usb-0:2:1.0");
}

TEST_F(PortListPosixTest, AnAdapterWithoutAnInterfaceIsItsOwnSocket) {
    udev_device* adapter = addAdapter()->parent;
    addTerminal("ttyUSB0", adapter);
    EXPECT_EQ(list()[0].socket, "usb-1-2");
}

TEST_F(PortListPosixTest, AStandardPortHasTheDriverAboveTheKernelsOwnLevels) {
    udev_device* chip = add({"/sys/serial8250", "serial8250", "platform", {}});
    chip->driver = "serial8250";
    udev_device* level = add({"/sys/serial8250:0", "serial8250:0", "serial-base", {}, chip});
    level->driver = "ctrl";
    addTerminal("ttyS0", level)->attributes["type"] = "4";
    const auto ports = list();
    ASSERT_THAT(ports, SizeIs(1));
    EXPECT_EQ(ports[0].driver, "serial8250");
    EXPECT_EQ(ports[0].vendorId + ports[0].socket, "");
}

TEST_F(PortListPosixTest, ConsolesAndNamesWithoutHardwareAreLeftOut) {
    addTerminal("tty1", nullptr);
    addTerminal("ttyS1", add({"/sys/serial8250", "serial8250", "platform", {}}))->attributes["type"] = "0";
    EXPECT_THAT(list(), IsEmpty());
}

TEST_F(PortListPosixTest, WhatIsPulledWhileItIsListedIsLeftOut) {
    tree.pulled = {"/sys/ttyUSB0"};
    udev_device* interface = addAdapter();
    addTerminal("ttyUSB1", interface)->node.reset();
    addTerminal("ttyUSB2", interface);
    const auto ports = list();
    ASSERT_THAT(ports, SizeIs(1));
    EXPECT_EQ(ports[0].device, folder.path("ttyUSB2"));
}

TEST_F(PortListPosixTest, WhereTheDeviceManagersLibraryFailsNoPortIsListedAndNothingStaysOpen) {
    addTerminal("ttyUSB0", addAdapter());
    for (const char* step : {"udev_new", "udev_enumerate_new", "udev_enumerate_add_match_subsystem",
                             "udev_enumerate_scan_devices"}) {
        const test::FailingCall fails(step, ENOMEM);
        EXPECT_THAT(list(), IsEmpty()) << step;
        EXPECT_EQ(tree.held, 0) << step;
    }
    EXPECT_THAT(list(), SizeIs(1)) << "once it works";
}

TEST_F(PortListPosixTest, WhoHoldsAPortIsOnlyLookedUpWhenAsked) {
    addTerminal("ttyUSB0", addAdapter());
    const int own = ::open(folder.path("ttyUSB0").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_GE(own, 0);
    EXPECT_EQ(list()[0].holder, "");
    EXPECT_EQ(list(Holders::Asked)[0].holder, "this program");
    ::close(own);
}

}  // namespace
}  // namespace velmora
