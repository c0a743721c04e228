#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "serial/port_names.h"

namespace velmora {
namespace {

TEST(PortNamesWin32Test, ANumberStandsForThePortOfThatName) {
    const PortNames names;
    for (const int number : {1, 4, 5, 9, 10, 36, 37, 256, 257, 32767}) {
        EXPECT_EQ(names.device(number), "COM" + std::to_string(number));
    }
    EXPECT_EQ(names.device(0), std::nullopt);
    EXPECT_EQ(names.device(-7), std::nullopt);
    EXPECT_EQ(names.device(32768), std::nullopt);
}

TEST(PortNamesWin32Test, TextsAreBroughtToTheUsualForm) {
    const PortNames names;
    EXPECT_EQ(names.device("com5"), "COM5");
    EXPECT_EQ(names.device(" Com12 "), "COM12");
}

TEST(PortNamesWin32Test, APortOfAnotherNameGetsANumberThatWindowsDoesNotGive) {
    PortNames names;
    EXPECT_EQ(names.numberFor("VIRT0"), 4097);
    EXPECT_EQ(names.device("COM4097"), "VIRT0");
}

TEST(PortNamesWin32Test, ADeviceIsFoundWithAndWithoutItsPrefixAndInAnyCase) {
    PortNames names(PortNames::Overrides{{"COM12", R"(\\.\VIRT0)"}, {"COM7", "Virt1"}});
    EXPECT_EQ(names.numberFor("virt0"), 12);
    EXPECT_EQ(names.numberFor(R"(\\?\VIRT1)"), 7);
    EXPECT_EQ(names.numberFor(R"(\\.\com9)"), 9);
    EXPECT_EQ(names.numberOf("COM7"), std::nullopt) << "its number is another device's";
    EXPECT_EQ(names.numberOf("COM12"), std::nullopt);
    EXPECT_EQ(names.numberOf("COM8"), 8);
}

}  // namespace
}  // namespace velmora
