#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "serial/device_facts.h"
#include "support/login_records.h"
#include "support/ordinary_login.h"
#include "support/pty_pair.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using ::testing::HasSubstr;

class DeviceFactsTest : public ::testing::Test {
  protected:
    std::string makeDevice(mode_t mode) {
        chmod(folder.path().c_str(), 0755);
        const std::string path = folder.write("tty");
        chmod(path.c_str(), mode);
        return path;
    }
    /// Makes process `id` in a process table, with `file` among its descriptors.
    void makeProcess(const std::string& id, const std::string& name, const std::string& file) {
        folder.makeFolder("proc/" + id + "/fd");
        folder.write("proc/" + id + "/comm", name + "\n");
        std::filesystem::create_symlink("/dev/null", folder.path("proc/" + id + "/fd/0"));
        std::filesystem::create_symlink(file, folder.path("proc/" + id + "/fd/7"));
    }

    ~DeviceFactsTest() override { logins = {}; }

    test::LoginRecords& logins = test::loginRecords();
    test::TempFolder folder;
};

TEST_F(DeviceFactsTest, AMissingDeviceDoesNotExist) {
    const DeviceFacts facts = gatherDeviceFacts(folder.path("none"));
    EXPECT_FALSE(facts.exists);
    EXPECT_FALSE(facts.mayOpen);
}

TEST_F(DeviceFactsTest, TheOwnersLoginMayOpenItsDevice) {
    const DeviceFacts facts = gatherDeviceFacts(makeDevice(0660));
    EXPECT_TRUE(facts.exists);
    EXPECT_TRUE(facts.mayOpen);
    EXPECT_EQ(facts.owner, facts.login);
    EXPECT_FALSE(facts.group.empty());
    EXPECT_TRUE(facts.groupMayOpen);
}

TEST_F(DeviceFactsTest, TheGroupNeedsBothRights) {
    EXPECT_FALSE(gatherDeviceFacts(makeDevice(0640)).groupMayOpen);
    EXPECT_FALSE(gatherDeviceFacts(makeDevice(0620)).groupMayOpen);
    EXPECT_TRUE(gatherDeviceFacts(makeDevice(0660)).groupMayOpen);
}

TEST_F(DeviceFactsTest, WhoHasNoNameIsToldByNumber) {
    const std::string path = makeDevice(0660);
    struct stat status {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    logins.known = false;
    const DeviceFacts facts = gatherDeviceFacts(path);
    EXPECT_EQ(facts.owner, std::to_string(status.st_uid));
    EXPECT_EQ(facts.group, std::to_string(status.st_gid));
    EXPECT_FALSE(facts.loginIsMember);
}

TEST_F(DeviceFactsTest, AMemberOfTheGroupIsToldFromAnybodyElse) {
    const std::string path = makeDevice(0660);
    const std::string login = gatherDeviceFacts(path).login;
    logins.members = {"somebody", login, "another"};
    EXPECT_TRUE(gatherDeviceFacts(path).loginIsMember);
    logins.members = {"somebody", "another"};
    EXPECT_FALSE(gatherDeviceFacts(path).loginIsMember);
}

TEST_F(DeviceFactsTest, ASessionHasItsOwnGroupAndThoseOfItsLogin) {
    const std::string path = makeDevice(0660);
    struct stat status {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    const gid_t other = status.st_gid + 1;
    logins.groups = {status.st_gid, other};
    EXPECT_TRUE(gatherDeviceFacts(path).sessionIsMember);
    logins.groups = {other, status.st_gid};
    EXPECT_TRUE(gatherDeviceFacts(path).sessionIsMember);
    logins.groups = {other};
    EXPECT_FALSE(gatherDeviceFacts(path).sessionIsMember);
}

TEST_F(DeviceFactsTest, WithoutTheRightsALoginMayNotOpenIt) {
    const std::string path = makeDevice(0);
    DeviceFacts facts;
    {
        const test::OrdinaryLogin login;
        facts = gatherDeviceFacts(path);
    }
    EXPECT_TRUE(facts.exists);
    EXPECT_FALSE(facts.mayOpen);
    EXPECT_FALSE(facts.login.empty());
}

TEST_F(DeviceFactsTest, TheHolderIsNamedWithItsProcess) {
    const std::string device = makeDevice(0660);
    makeProcess("12", "bash", "/dev/zero");
    makeProcess("4711", "picocom", device);
    EXPECT_EQ(findHolder(device, folder.path("proc")), "picocom (process 4711)");
}

TEST_F(DeviceFactsTest, AFolderThatIsNoProcessHoldsNothing) {
    const std::string device = makeDevice(0660);
    makeProcess("self", "picocom", device);
    EXPECT_EQ(findHolder(device, folder.path("proc")), "");
}

TEST_F(DeviceFactsTest, ALinkToTheDeviceFindsTheSameHolder) {
    const std::string device = makeDevice(0660);
    makeProcess("4711", "picocom", device);
    std::filesystem::create_symlink(device, folder.path("by-id"));
    EXPECT_EQ(findHolder(folder.path("by-id"), folder.path("proc")), "picocom (process 4711)");
}

TEST_F(DeviceFactsTest, AHolderWithoutANameIsStillAHolder) {
    const std::string device = makeDevice(0660);
    makeProcess("4711", "", device);
    EXPECT_EQ(findHolder(device, folder.path("proc")), "a program (process 4711)");
}

TEST_F(DeviceFactsTest, NobodyIsNamedWhenTheSystemDoesNotTell) {
    const std::string device = makeDevice(0660);
    makeProcess("12", "bash", "/dev/zero");
    EXPECT_EQ(findHolder(device, folder.path("proc")), "");
    EXPECT_EQ(findHolder(device, folder.path("none")), "");
    EXPECT_EQ(findHolder(folder.path("none"), folder.path("proc")), "");
}

TEST_F(DeviceFactsTest, TheProgramRecognisesItself) {
    const test::PtyPair line;
    const int own = ::open(line.slavePath().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(own, 0);
    EXPECT_EQ(findHolder(line.slavePath()), "this program");
    ::close(own);
}

}  // namespace
}  // namespace velmora
