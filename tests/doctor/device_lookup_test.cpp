#include "doctor/device_lookup.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(DeviceLookupTest, ADeviceThatIsNotThereHasAName) {
    PortNames names(PortNames::Overrides{{"COM77", "/dev/velmora-has-no-such-device"}});
    const ExaminedDevice device = lookUpDevice(names, 77, "COM77");
    EXPECT_EQ(device.name, "/dev/velmora-has-no-such-device");
    EXPECT_FALSE(device.facts.exists);
    EXPECT_EQ(device.holder, "");
    EXPECT_EQ(device.latency, std::nullopt);
    EXPECT_EQ(device.identity.driver, "");
}

TEST(DeviceLookupTest, APortWithoutADeviceIsCalledAsItsUserDoes) {
    PortNames names;
    EXPECT_EQ(lookUpDevice(names, 0, "COM99").name, "COM99");
}

}  // namespace
}  // namespace velmora
