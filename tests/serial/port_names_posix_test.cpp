#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "serial/port_names.h"

namespace velmora {
namespace {

struct DeviceRow {
    int number;
    std::optional<std::string> device;
};

TEST(PortNamesPosixTest, NumbersStandForTheUsualDevices) {
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

TEST(PortNamesPosixTest, TextsStandForTheirNumbers) {
    const PortNames names;
    EXPECT_EQ(names.device("com5"), "/dev/ttyUSB0");
}

TEST(PortNamesPosixTest, ADeviceHasTheNumberThatStandsForIt) {
    PortNames names;
    EXPECT_EQ(names.numberFor("/dev/ttyS0"), 1);
    EXPECT_EQ(names.numberFor("/dev/ttyACM15"), 36);
    EXPECT_EQ(names.numberFor("/dev/pts/3"), 37);
}

TEST(PortNamesPosixTest, ADeviceWhoseNumberWasGivenAwayGetsAFreeOne) {
    PortNames names(PortNames::Overrides{{"COM5", "/dev/ttyAMA0"}});
    EXPECT_EQ(names.numberFor("/dev/ttyUSB0"), 37);
}

}  // namespace
}  // namespace velmora
