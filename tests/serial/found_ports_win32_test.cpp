#include "serial/found_ports_win32.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <set>
#include <string>

#include "base/byte_text.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;

std::vector<std::string> linesOf(const std::vector<PortIdentity>& devices) {
    std::vector<std::string> lines;
    for (const PortIdentity& device : devices) {
        lines.push_back(std::to_string(device.number) + "|" + device.device + "|" + device.maker + "|" +
                        device.product);
    }
    return lines;
}

TEST(FoundPortsWin32Test, PortsAreSortedByNumberAndNotByText) {
    PortNames names;
    const auto devices = serialDevices({{"COM10", "", ""}, {"COM2", "", ""}, {"COM1", "", ""}}, {}, names);
    EXPECT_THAT(linesOf(devices), ElementsAre("1|COM1||", "2|COM2||", "10|COM10||"));
}

TEST(FoundPortsWin32Test, APluggedInDeviceGivesItsPortMakerAndProduct) {
    PortNames names;
    const auto devices = serialDevices({{"COM7", "", ""}, {"COM1", "", ""}},
                                       {{"COM7", "USB Serial Port (COM7)", "Adapters Ltd"}}, names);
    EXPECT_THAT(linesOf(devices), ElementsAre("1|COM1||", "7|COM7|Adapters Ltd|USB Serial Port"));
    EXPECT_TRUE(devices[1].mayOpen);
    EXPECT_EQ(devices[1].groupToJoin, "");
}

TEST(FoundPortsWin32Test, AMakerIsNotToldTwice) {
    PortNames names;
    const auto devices = serialDevices({}, {{"com4", "Adapters USB-to-Serial (COM4)", "Adapters"}}, names);
    EXPECT_THAT(linesOf(devices), ElementsAre("4|COM4|Adapters|USB-to-Serial"));
}

TEST(FoundPortsWin32Test, ADeviceThatNoDriverAnnouncedIsListedAndPrintersAreNot) {
    PortNames names;
    const auto devices = serialDevices({},
                                       {{"LPT1", "Printer Port (LPT1)", "(Standard port types)"},
                                        {"", "Broken adapter", ""},
                                        {"COM3", "Communications Port (COM3)", "(Standard port types)"}},
                                       names);
    EXPECT_THAT(linesOf(devices), ElementsAre("3|COM3|(Standard port types)|Communications Port"));
}

TEST(FoundPortsWin32Test, APortInBothListsOrTwiceInOneIsOneEntry) {
    PortNames names;
    const auto devices =
        serialDevices({{"COM5", "", ""}, {"COM5", "", ""}, {"", "", ""}},
                      {{"COM5", "Adapter (COM5)", "A"}, {"COM5", "Other (COM5)", "B"}}, names);
    EXPECT_THAT(linesOf(devices), ElementsAre("5|COM5|A|Adapter"));
}

TEST(FoundPortsWin32Test, AnAnnouncedPortOfAnotherNameGetsANumber) {
    PortNames names;
    const auto devices = serialDevices({{"VIRT0", "", ""}}, {}, names);
    EXPECT_THAT(linesOf(devices), ElementsAre("4097|VIRT0||"));
    EXPECT_EQ(names.device(4097), "VIRT0");
}

TEST(FoundPortsWin32Test, APortWhoseNumberIsAnotherDevicesIsNotOffered) {
    PortNames names(PortNames::Overrides{{"COM7", "VIRT0"}});
    const auto devices = serialDevices({{"COM7", "", ""}, {"COM8", "", ""}, {"VIRT0", "", ""}},
                                       {{"COM7", "Adapter (COM7)", "A"}}, names);
    EXPECT_THAT(linesOf(devices), ElementsAre("7|VIRT0||", "8|COM8||"));
}

TEST(FoundPortsWin32Test, APortIsOfferedUnderTheLowestNumberThatStandsForIt) {
    PortNames names(PortNames::Overrides{{"COM7", "VIRT0"}, {"COM20", R"(\\.\COM7)"}});
    const auto devices = serialDevices({{"COM7", "", ""}}, {}, names);
    EXPECT_THAT(linesOf(devices), ElementsAre("20|COM7||"));
}

TEST(FoundPortsWin32Test, ADeviceThatWasGivenANumberIsOneEntryHoweverItIsWritten) {
    PortNames names(PortNames::Overrides{{"COM12", R"(\\.\VIRT0)"}, {"COM13", "virt1"}});
    const auto devices = serialDevices({{"VIRT0", "", ""}, {"VIRT1", "", ""}, {"Virt1", "", ""}}, {}, names);
    EXPECT_THAT(linesOf(devices), ElementsAre("12|VIRT0||", "13|Virt1||"));
}

TEST(FoundPortsWin32Test, NothingFoundIsAnEmptyList) {
    PortNames names;
    EXPECT_THAT(serialDevices({}, {}, names), IsEmpty());
}

/// The distinct names that drivers have announced.
std::set<std::string> announcedNames() {
    std::set<std::string> found;
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, R"(HARDWARE\DEVICEMAP\SERIALCOMM)", 0, KEY_READ, &key) !=
        ERROR_SUCCESS) {
        return found;
    }
    for (DWORD index = 0;; ++index) {
        std::array<char, 512> driver{};
        std::array<char, 512> name{};
        auto driverLength = static_cast<DWORD>(driver.size());
        auto nameSize = static_cast<DWORD>(name.size() - 1);
        if (RegEnumValueA(key, index, driver.data(), &driverLength, nullptr, nullptr,
                          reinterpret_cast<BYTE*>(name.data()), &nameSize) != ERROR_SUCCESS) {
            break;
        }
        if (name[0] != '\0') {
            found.insert(upperCase(name.data()));
        }
    }
    RegCloseKey(key);
    return found;
}

/// What there is depends on the machine; whatever it is must be in order and fit to be opened by its number.
TEST(FoundPortsWin32Test, TheMachinesOwnPortsAreInOrderAndKnown) {
    const std::set<std::string> announced = announcedNames();
    if (announced.empty()) {
        GTEST_SKIP() << "this machine announces no ports";
    }
    PortNames names;
    const std::vector<PortIdentity> devices = listPorts(names);
    std::set<std::string> listed;
    int last = 0;
    for (const PortIdentity& device : devices) {
        EXPECT_GT(device.number, last);
        EXPECT_EQ(names.device(device.number), device.device);
        last = device.number;
        listed.insert(upperCase(device.device));
    }
    EXPECT_THAT(listed, IsSupersetOf(announced));
}

}  // namespace
}  // namespace velmora
