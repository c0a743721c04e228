#include "serial/named_port.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(NamedPortTest, ANumberedPortKeepsItsNumber) {
    PortNames names;
    EXPECT_EQ(placeNamedPort(names, "COM7"), 7);
}

TEST(NamedPortTest, AnAdapterThatIsNotThereIsADeviceThatDoesNotExist) {
    PortNames names;
    const std::string name = "usb:ffff:ffff:NOBODY-HAS-IT";
    const int number = placeNamedPort(names, name);
    EXPECT_EQ(number, PortNames::firstFreeNumber());
    EXPECT_EQ(names.device(number), name);
}

}  // namespace
}  // namespace velmora
