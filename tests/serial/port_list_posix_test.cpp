#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "serial/port_list.h"
#include "support/ordinary_login.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

/// A made tree in place of /sys and /dev.
class PortListTest : public ::testing::Test {
  protected:
    PortListTest() {
        chmod(folder.path().c_str(), 0755);
        folder.makeFolder("sys/class/tty");
        folder.makeFolder("dev");
    }
    /// A terminal `name` whose device hangs under `parent`, with a device file.
    void addTerminal(const std::string& name, const std::string& parent) {
        const std::string device = folder.makeFolder("sys/devices/" + parent + "/" + name);
        const std::string entry = folder.makeFolder("sys/devices/" + parent + "/" + name + "/tty/" + name);
        std::filesystem::create_symlink(device, entry + "/device");
        std::filesystem::create_symlink(entry, folder.path("sys/class/tty/" + name));
        folder.write("dev/" + name);
    }
    void addAdapter(const std::string& name, const std::string& maker, const std::string& product) {
        addTerminal(name, "usb1/" + name + "-device/interface");
        folder.write("sys/devices/usb1/" + name + "-device/manufacturer", maker + "\n");
        folder.write("sys/devices/usb1/" + name + "-device/product", product + "\n");
    }
    void addStandardPort(const std::string& name, const std::string& type) {
        addTerminal(name, "platform/serial8250");
        folder.write("sys/devices/platform/serial8250/" + name + "/tty/" + name + "/type", type + "\n");
    }
    std::vector<SerialDevice> list() {
        return listSerialDevices(names, folder.path("sys"), folder.path("dev"));
    }

    test::TempFolder folder;
    PortNames names{
        PortNames::Overrides{{"COM1", folder.path("dev/ttyS0")}, {"COM5", folder.path("dev/ttyUSB0")}}};
};

TEST_F(PortListTest, AnAdapterIsListedWithItsMakerAndProduct) {
    addAdapter("ttyUSB0", "FTDI", "FT232R USB UART");
    const auto devices = list();
    ASSERT_THAT(devices, SizeIs(1));
    EXPECT_EQ(devices[0].number, 5);
    EXPECT_EQ(devices[0].device, folder.path("dev/ttyUSB0"));
    EXPECT_EQ(devices[0].maker, "FTDI");
    EXPECT_EQ(devices[0].product, "FT232R USB UART");
    EXPECT_TRUE(devices[0].mayOpen);
    EXPECT_EQ(devices[0].groupToJoin, "");
}

TEST_F(PortListTest, AStandardPortHasNoMaker) {
    addStandardPort("ttyS0", "4");
    const auto devices = list();
    ASSERT_THAT(devices, SizeIs(1));
    EXPECT_EQ(devices[0].number, 1);
    EXPECT_EQ(devices[0].maker, "");
    EXPECT_EQ(devices[0].product, "");
}

TEST_F(PortListTest, StandardPortsWithoutHardwareAreLeftOut) {
    addStandardPort("ttyS0", "0");
    EXPECT_THAT(list(), IsEmpty());
}

TEST_F(PortListTest, ConsolesAreLeftOut) {
    folder.makeFolder("sys/class/tty/tty1");
    folder.write("dev/tty1");
    EXPECT_THAT(list(), IsEmpty());
}

TEST_F(PortListTest, ADeviceWithoutItsFileIsLeftOut) {
    addAdapter("ttyUSB0", "FTDI", "FT232R USB UART");
    std::filesystem::remove(folder.path("dev/ttyUSB0"));
    EXPECT_THAT(list(), IsEmpty());
}

TEST_F(PortListTest, DevicesAreOrderedByNumberAndUnknownOnesGetFreeNumbers) {
    addTerminal("ttyAMA1", "soc");
    addTerminal("ttyAMA0", "soc");
    addAdapter("ttyUSB0", "FTDI", "FT232R USB UART");
    const auto devices = list();
    ASSERT_THAT(devices, SizeIs(3));
    EXPECT_EQ(devices[0].number, 5);
    EXPECT_EQ(devices[1].number, 37);
    EXPECT_EQ(devices[1].device, folder.path("dev/ttyAMA0"));
    EXPECT_EQ(devices[2].number, 38);
    EXPECT_EQ(names.device(38), folder.path("dev/ttyAMA1"));
}

TEST_F(PortListTest, ADeviceThatMayNotBeOpenedNamesTheGroup) {
    addAdapter("ttyUSB0", "FTDI", "FT232R USB UART");
    // The group keeps its rights, the owner and everybody else have none.
    chmod(folder.path("dev/ttyUSB0").c_str(), 0060);
    std::vector<SerialDevice> devices;
    {
        const test::OrdinaryLogin login;
        devices = list();
    }
    ASSERT_THAT(devices, SizeIs(1));
    EXPECT_FALSE(devices[0].mayOpen);
    EXPECT_FALSE(devices[0].groupToJoin.empty());
}

TEST_F(PortListTest, WithoutASystemFolderThereAreNoDevices) {
    EXPECT_THAT(listSerialDevices(names, folder.path("none"), folder.path("dev")), IsEmpty());
}

}  // namespace
}  // namespace velmora
