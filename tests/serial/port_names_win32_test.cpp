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

}  // namespace
}  // namespace velmora
