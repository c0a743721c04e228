#include "serial/found_terminals_posix.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "serial/port_list.h"

namespace velmora {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

class FoundTerminalsTest : public ::testing::Test {
  protected:
    static FoundTerminal terminal(const std::string& device) {
        FoundTerminal found;
        found.device = device;
        found.hardware = true;
        return found;
    }
    static FoundTerminal adapter(const std::string& device) {
        FoundTerminal found = terminal(device);
        found.vendorId = "0403";
        found.productId = "6001";
        found.serial = "A50285BI";
        found.socket = "pci-0000:00:14.0-usb-0:2:1.0";
        found.maker = "FTDI";
        found.product = "FT232R USB UART";
        found.driver = "ftdi_sio";
        found.links = {"/dev/serial/by-path/pci-0000:00:14.0-usb-0:2:1.0-port0",
                       "/dev/serial/by-id/usb-FTDI_FT232R_USB_UART_A50285BI-if00-port0"};
        return found;
    }
    std::vector<PortIdentity> list(const std::vector<FoundTerminal>& terminals) {
        return portsOf(terminals,
                       {[this](const std::string& device) {
                            const auto known = facts.find(device);
                            DeviceFacts open;
                            open.exists = open.mayOpen = true;
                            return known == facts.end() ? open : known->second;
                        },
                        [this](const std::string& device) { return holders[device]; }},
                       names);
    }

    std::map<std::string, DeviceFacts> facts;
    std::map<std::string, std::string> holders;
    PortNames names;
};

TEST_F(FoundTerminalsTest, AnAdapterIsListedWithAllThatIsKnownOfIt) {
    holders["/dev/ttyUSB0"] = "minicom (process 12)";
    const auto ports = list({adapter("/dev/ttyUSB0")});
    ASSERT_THAT(ports, SizeIs(1));
    const PortIdentity& port = ports[0];
    EXPECT_EQ(port.number, 5);
    EXPECT_EQ(port.device, "/dev/ttyUSB0");
    EXPECT_EQ(port.stableName, "/dev/serial/by-id/usb-FTDI_FT232R_USB_UART_A50285BI-if00-port0");
    EXPECT_EQ(port.vendorId + ":" + port.productId + ":" + port.serial, "0403:6001:A50285BI");
    EXPECT_EQ(port.socket, "pci-0000:00:14.0-usb-0:2:1.0");
    EXPECT_EQ(port.maker, "FTDI");
    EXPECT_EQ(port.product, "FT232R USB UART");
    EXPECT_EQ(port.driver, "ftdi_sio");
    EXPECT_EQ(port.chip, "FT232R");
    EXPECT_EQ(port.holder, "minicom (process 12)");
    EXPECT_TRUE(port.mayOpen);
    EXPECT_EQ(port.groupToJoin, "");
}

TEST_F(FoundTerminalsTest, WithoutALinkByItsIdTheOneByItsSocketIsTheStableName) {
    FoundTerminal found = adapter("/dev/ttyUSB0");
    found.links.pop_back();
    EXPECT_EQ(list({found})[0].stableName, "/dev/serial/by-path/pci-0000:00:14.0-usb-0:2:1.0-port0");
}

TEST_F(FoundTerminalsTest, ALinkThatTwoDevicesClaimIsTheStableNameOfNeither) {
    FoundTerminal other = adapter("/dev/ttyUSB1");
    other.links[0] = "/dev/serial/by-path/pci-0000:00:14.0-usb-0:3:1.0-port0";
    for (const PortIdentity& port : list({adapter("/dev/ttyUSB0"), other})) {
        EXPECT_THAT(port.stableName, ::testing::HasSubstr("by-path")) << port.device;
    }
}

TEST_F(FoundTerminalsTest, ADeviceThatIsToldTwiceIsOnePort) {
    FoundTerminal again = adapter("/dev/ttyUSB0");
    again.product = "told later";
    const auto ports = list({adapter("/dev/ttyUSB0"), again});
    ASSERT_THAT(ports, SizeIs(1));
    EXPECT_EQ(ports[0].product, "FT232R USB UART");
}

TEST_F(FoundTerminalsTest, AStandardPortHasNoMakerAndNoNumbersOfUsb) {
    const auto ports = list({terminal("/dev/ttyS0")});
    ASSERT_THAT(ports, SizeIs(1));
    EXPECT_EQ(ports[0].number, 1);
    EXPECT_EQ(ports[0].maker + ports[0].product + ports[0].vendorId + ports[0].chip, "");
}

TEST_F(FoundTerminalsTest, NamesWithoutHardwareAreLeftOut) {
    FoundTerminal console = terminal("/dev/tty1");
    console.hardware = false;
    EXPECT_THAT(list({console}), IsEmpty());
}

TEST_F(FoundTerminalsTest, ADeviceWithoutItsFileIsLeftOut) {
    facts["/dev/ttyUSB0"] = DeviceFacts();
    EXPECT_THAT(list({adapter("/dev/ttyUSB0")}), IsEmpty());
}

TEST_F(FoundTerminalsTest, DevicesAreOrderedByNumberAndUnknownOnesGetFreeNumbers) {
    const auto ports = list({terminal("/dev/ttyAMA1"), terminal("/dev/ttyAMA0"), adapter("/dev/ttyUSB0")});
    ASSERT_THAT(ports, SizeIs(3));
    EXPECT_EQ(ports[0].number, 5);
    EXPECT_EQ(ports[1].number, 37);
    EXPECT_EQ(ports[1].device, "/dev/ttyAMA0");
    EXPECT_EQ(ports[2].number, 38);
    EXPECT_EQ(names.device(38), "/dev/ttyAMA1");
}

TEST_F(FoundTerminalsTest, ListingDoesNotChangeWhatMessagesCallAPort) {
    list({adapter("/dev/ttyUSB0")});
    EXPECT_EQ(names.shown(5), "COM5");
}

TEST_F(FoundTerminalsTest, ADeviceThatMayNotBeOpenedNamesTheGroup) {
    DeviceFacts closed;
    closed.exists = true;
    closed.group = "dialout";
    closed.groupMayOpen = true;
    facts["/dev/ttyUSB0"] = closed;
    const auto ports = list({adapter("/dev/ttyUSB0")});
    ASSERT_THAT(ports, SizeIs(1));
    EXPECT_FALSE(ports[0].mayOpen);
    EXPECT_EQ(ports[0].groupToJoin, "dialout");
}

/// What there is depends on the machine; whatever it is must be in order and fit to be opened by its number.
TEST(PortListTest, TheMachinesOwnPortsAreInOrderAndKnown) {
    PortNames names;
    int last = 0;
    for (const PortIdentity& port : listPorts(names, Holders::Asked)) {
        EXPECT_GT(port.number, last);
        EXPECT_EQ(names.device(port.number), port.device);
        EXPECT_TRUE(gatherDeviceFacts(port.device).exists);
        last = port.number;
    }
}

}  // namespace
}  // namespace velmora
