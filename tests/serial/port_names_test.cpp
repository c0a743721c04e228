#include "serial/port_names.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

struct NumberRow {
    const char* text;
    std::optional<int> number;
};

TEST(ComNumberTest, ReadsTheNumberInAnyCase) {
    const NumberRow rows[] = {
        {"COM1", 1},
        {"com7", 7},
        {"Com36", 36},
        {" COM12 ", 12},
        {"COM32767", 32767},
        {"COM0", std::nullopt},
        {"COM32768", std::nullopt},
        {"COM99999999999", std::nullopt},
        {"COM-1", std::nullopt},
        {"COM", std::nullopt},
        {"COM1x", std::nullopt},
        {"COM 1", std::nullopt},
        {"LPT1", std::nullopt},
        {"", std::nullopt},
    };
    for (const NumberRow& row : rows) {
        EXPECT_EQ(comNumber(row.text), row.number) << row.text;
    }
}

struct DeviceRow {
    int number;
    std::optional<std::string> device;
};

TEST(PortNamesTest, NumbersStandForTheUsualDevices) {
    const DeviceRow rows[] = {
        {-1, std::nullopt},  {0, std::nullopt},     {1, "/dev/ttyS0"},    {4, "/dev/ttyS3"},
        {5, "/dev/ttyUSB0"}, {20, "/dev/ttyUSB15"}, {21, "/dev/ttyACM0"}, {36, "/dev/ttyACM15"},
        {37, std::nullopt},  {64, std::nullopt},
    };
    const PortNames names;
    for (const DeviceRow& row : rows) {
        EXPECT_EQ(names.device(row.number), row.device) << row.number;
    }
}

TEST(PortNamesTest, TextsStandForTheirNumbers) {
    const PortNames names;
    EXPECT_EQ(names.device("com5"), "/dev/ttyUSB0");
    EXPECT_EQ(names.device("COM-3"), std::nullopt);
    EXPECT_EQ(names.device("/dev/ttyUSB0"), std::nullopt);
}

TEST(PortNamesTest, AGivenDeviceReplacesTheUsualOne) {
    const PortNames names(
        PortNames::Overrides{{"com7", "/dev/serial/by-id/adapter"}, {"COM99", "/dev/ttyAMA0"}});
    EXPECT_EQ(names.device(7), "/dev/serial/by-id/adapter");
    EXPECT_EQ(names.device(99), "/dev/ttyAMA0");
    EXPECT_EQ(names.device(8), "/dev/ttyUSB3");
}

TEST(PortNamesTest, EntriesThatAreNoPortsAreLeftOut) {
    const PortNames names(PortNames::Overrides{{"COM7", ""}, {"COM0", "/dev/zero"}, {"Speed", "9600"}});
    EXPECT_EQ(names.device(7), "/dev/ttyUSB2");
    EXPECT_EQ(names.device(0), std::nullopt);
}

TEST(PortNamesTest, TheNumberOfATextIsItsOwn) {
    PortNames names;
    EXPECT_EQ(names.numberFor("com12"), 12);
    EXPECT_EQ(names.numberFor("COM64"), 64);
    EXPECT_EQ(names.device(64), std::nullopt);
}

TEST(PortNamesTest, ADeviceHasTheNumberThatStandsForIt) {
    PortNames names(PortNames::Overrides{{"COM50", "/dev/ttyAMA0"}});
    EXPECT_EQ(names.numberFor("/dev/ttyS0"), 1);
    EXPECT_EQ(names.numberFor("/dev/ttyACM15"), 36);
    EXPECT_EQ(names.numberFor("/dev/ttyAMA0"), 50);
}

TEST(PortNamesTest, AnUnknownDeviceGetsTheFirstFreeNumberAndKeepsIt) {
    PortNames names(PortNames::Overrides{{"COM37", "/dev/ttyAMA0"}});
    EXPECT_EQ(names.numberFor("/dev/pts/3"), 38);
    EXPECT_EQ(names.device(38), "/dev/pts/3");
    EXPECT_EQ(names.numberFor("/dev/pts/4"), 39);
    EXPECT_EQ(names.numberFor("/dev/pts/3"), 38);
}

TEST(PortNamesTest, ADeviceWhoseNumberWasGivenAwayGetsAFreeOne) {
    PortNames names(PortNames::Overrides{{"COM5", "/dev/ttyAMA0"}});
    EXPECT_EQ(names.numberFor("/dev/ttyUSB0"), 37);
}

}  // namespace
}  // namespace velmora
