#include "serial/open_diagnosis.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "serial/comm_device.h"
#include "serial/serial_port.h"

namespace velmora {
namespace {

using ::testing::HasSubstr;

#ifdef _WIN32
constexpr std::int32_t kNotSerial = 1;
constexpr std::int32_t kOutOfMemory = 8;
constexpr const char* kNameOnly = "/dev/ttyS1 does not respond; is the adapter still plugged in?";
#else
constexpr std::int32_t kNotSerial = ENOTTY;
constexpr std::int32_t kOutOfMemory = ENOMEM;
constexpr const char* kNameOnly = "/dev/ttyS1 has no serial hardware behind it";
#endif

DeviceFacts adapterOf(const std::string& login) {
    DeviceFacts facts;
    facts.exists = true;
    facts.owner = "root";
    facts.group = "dialout";
    facts.groupMayOpen = true;
    facts.login = login;
    return facts;
}

DeviceFacts openableAdapter() {
    DeviceFacts facts = adapterOf("root");
    facts.mayOpen = true;
    return facts;
}

TEST(OpenDiagnosisTest, AnOutsiderIsToldWhichGroupToJoinAndHow) {
    EXPECT_EQ(
        permissionSentence("/dev/ttyUSB0", adapterOf("ed")),
        "No permission to open /dev/ttyUSB0, which belongs to user root and group dialout; ed is not in that "
        "group: run \"sudo usermod -aG dialout ed\", then log out and in again.");
}

TEST(OpenDiagnosisTest, ANewMemberIsToldToLogInAgain) {
    DeviceFacts facts = adapterOf("ed");
    facts.loginIsMember = true;
    EXPECT_THAT(permissionSentence("/dev/ttyUSB0", facts),
                HasSubstr("ed is in that group from the next login on: log out and in again."));
}

TEST(OpenDiagnosisTest, AMemberIsNotToldToJoin) {
    DeviceFacts facts = adapterOf("ed");
    facts.loginIsMember = true;
    facts.sessionIsMember = true;
    EXPECT_THAT(permissionSentence("/dev/ttyUSB0", facts), HasSubstr("something else forbids it"));
}

TEST(OpenDiagnosisTest, AGroupWithoutRightsIsNotRecommended) {
    DeviceFacts facts = adapterOf("ed");
    facts.groupMayOpen = false;
    EXPECT_THAT(permissionSentence("/dev/ttyUSB0", facts), HasSubstr("the group may not open it either."));
}

TEST(OpenDiagnosisTest, UnknownOwnersAreNotInvented) {
    EXPECT_EQ(permissionSentence("/dev/x", DeviceFacts{}), "No permission to open /dev/x.");
}

struct Diagnosis {
    const char* name;
    std::int32_t code;
    DeviceFacts facts;
    const char* holder;
    const char* expected;
};

class DiagnosisTest : public ::testing::TestWithParam<Diagnosis> {};

TEST_P(DiagnosisTest, IsOneSentenceWithTheCure) {
    const Diagnosis& row = GetParam();
    EXPECT_THAT(describeOpenFailure("/dev/ttyS1", row.code, row.facts, row.holder), HasSubstr(row.expected));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DiagnosisTest,
    ::testing::Values(
        Diagnosis{"Absent", kNoSuchPort, {}, "", "/dev/ttyS1 does not exist; is the adapter plugged in"},
        Diagnosis{"AbsentRaised", kCommInvalidPort, {}, "", "/dev/ttyS1 does not exist"},
        Diagnosis{"NameOnly", kNoSuchPort, openableAdapter(), "", kNameOnly},
        Diagnosis{"NameOnlyRaised", kCommInvalidPort, openableAdapter(), "", kNameOnly},
        Diagnosis{"NoPermission", EACCES, adapterOf("ed"), "", "No permission to open /dev/ttyS1"},
        Diagnosis{"NoPermissionRaised", kCommFailed, adapterOf("ed"), "", "No permission to open /dev/ttyS1"},
        Diagnosis{"Busy", kPortInUse, openableAdapter(), "", "/dev/ttyS1 is in use by another program."},
        Diagnosis{"BusyBy", kCommAlreadyOpen, openableAdapter(), "picocom (process 7)",
                  "/dev/ttyS1 is in use by picocom (process 7)."},
        Diagnosis{"Settings", kCommInvalidSettings, openableAdapter(), "",
                  "does not take these line settings"},
        Diagnosis{"SettingsNumber", kInvalidParameter, openableAdapter(), "",
                  "does not take these line settings"},
        Diagnosis{"NotSerial", kNotSerial, openableAdapter(), "", "/dev/ttyS1 is not a serial port."},
        Diagnosis{"DeviceFailed", kDeviceFailed, openableAdapter(), "", "/dev/ttyS1 does not respond"},
        Diagnosis{"Failed", kOutOfMemory, openableAdapter(), "", "/dev/ttyS1 cannot be opened: "},
        Diagnosis{"FailedWithoutNumber", kCommFailed, openableAdapter(), "", "/dev/ttyS1 cannot be opened."},
        Diagnosis{"VanishedMeanwhile", kCommFailed, {}, "", "/dev/ttyS1 does not exist"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(OpenDiagnosisTest, WhatTheSystemSaysIsASentence) {
    const std::string said = describeOpenFailure("/dev/ttyS1", kOutOfMemory, openableAdapter(), "");
    EXPECT_TRUE(said.ends_with('.')) << said;
    EXPECT_FALSE(said.ends_with("..")) << said;
}

TEST(OpenDiagnosisTest, LooksAtTheDeviceItself) {
    EXPECT_EQ(describeOpenFailure("COM99", kCommInvalidPort),
              "COM99 does not exist; is the adapter plugged in, and is it the right port?");
}

}  // namespace
}  // namespace velmora
