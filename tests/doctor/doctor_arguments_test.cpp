#include "doctor/doctor_arguments.h"

#include <gtest/gtest.h>

#include "arguments/usage_error.h"

namespace velmora {
namespace {

PortIdentity port(const std::string& device, const std::string& vendor = {}) {
    PortIdentity identity;
    identity.device = device;
    identity.vendorId = vendor;
    return identity;
}

TEST(DoctorArgumentsTest, PortAndJsonAreRead) {
    const DoctorArguments none = readDoctorArguments({});
    EXPECT_EQ(none.port, "");
    EXPECT_FALSE(none.json);
    const DoctorArguments both = readDoctorArguments({"--json", "--port", "COM7"});
    EXPECT_EQ(both.port, "COM7");
    EXPECT_TRUE(both.json);
    EXPECT_EQ(readDoctorArguments({"--port=usb:0403:6001:A1"}).port, "usb:0403:6001:A1");
}

TEST(DoctorArgumentsTest, NonsenseIsWrongUsage) {
    EXPECT_THROW(readDoctorArguments({"--port", "usb:what"}), UsageError);
    EXPECT_THROW(readDoctorArguments({"COM7"}), UsageError);
    EXPECT_EQ(doctorOutline().name, "velmora-doctor");
}

TEST(DoctorArgumentsTest, TheOnlyPortIsMeant) {
    EXPECT_EQ(onlyPort({}), "");
    EXPECT_EQ(onlyPort({port("/dev/ttyS0")}), "/dev/ttyS0");
    EXPECT_EQ(onlyPort({port("/dev/ttyS0"), port("/dev/ttyUSB0", "0403")}), "/dev/ttyUSB0");
}

TEST(DoctorArgumentsTest, AmongSeveralOneMustBeNamed) {
    try {
        onlyPort({port("/dev/ttyUSB0", "0403"), port("/dev/ttyUSB1", "067b")});
        FAIL();
    } catch (const UsageError& error) {
        EXPECT_STREQ(
            error.what(),
            "several ports are present; say with --port which to examine: /dev/ttyUSB0, /dev/ttyUSB1");
    }
    EXPECT_THROW(onlyPort({port("/dev/ttyS0"), port("/dev/ttyS1")}), UsageError);
}

}  // namespace
}  // namespace velmora
