// The computer's sleep while a server runs.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

namespace fs = std::filesystem;

/// A bus and a login manager of the test's own.
class SleepTest : public ServerFixture {
  protected:
    void SetUp() override {
        if (serverSide->windows()) {
            GTEST_SKIP() << "the login manager of Linux";
        }
        ServerFixture::SetUp();
        const std::string address = serverSide->environment(home, zone).at("DBUS_SYSTEM_BUS_ADDRESS");
        writeFile(home / "bus.conf",
                  "<busconfig><listen>" + address +
                      "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
                      "<allow send_destination=\"*\"/><allow receive_sender=\"*\"/><allow own=\"*\"/>"
                      "</policy></busconfig>");
        bus = std::make_unique<Process>(std::vector<std::string>{
            "dbus-daemon", "--config-file=" + (home / "bus.conf").string(), "--nofork", "--print-address"});
        ASSERT_TRUE(bus->waitForOutput(address)) << bus->error();
    }
    /// `refused`: what nobody is granted.
    void startLoginManager(const std::string& refused = {}) {
        loginManager = std::make_unique<Process>(std::vector<std::string>{
            (nativeTools() / "velmora-login-manager").string(),
            serverSide->environment(home, zone).at("DBUS_SYSTEM_BUS_ADDRESS"), refused});
        ASSERT_TRUE(loginManager->waitForOutput("ready")) << loginManager->error();
    }
    void startWaiting() {
        ASSERT_NO_FATAL_FAILURE(startServer({"--wait"}));
        ASSERT_TRUE(loginManager->waitForOutput("held delay sleep")) << loginManager->error();
    }
    /// Whether the server has the port open.
    bool holdsPort() const {
        std::error_code ignored;
        for (const auto& open : fs::directory_iterator("/proc/" + std::to_string(server->id()) + "/fd")) {
            if (fs::read_symlink(open.path(), ignored) == serverDevice) {
                return true;
            }
        }
        return false;
    }

    std::unique_ptr<Process> bus;
    std::unique_ptr<Process> loginManager;
};

TEST_F(SleepTest, TheComputerSleepsOnceThePortIsGivenBackAndIsServedAgainWhenItIsAwake) {
    ASSERT_NO_FATAL_FAILURE(startLoginManager());
    ASSERT_NO_FATAL_FAILURE(startWaiting());
    ASSERT_TRUE(server->waitForNextOutput("Waiting for link"));
    ASSERT_TRUE(holdsPort());
    loginManager->say("sleep\n");
    ASSERT_TRUE(loginManager->waitForNextOutput("released delay sleep"));
    EXPECT_FALSE(holdsPort());
    EXPECT_TRUE(server->waitForError("The computer goes to sleep. Velmora goes on when it is awake again."))
        << server->error();
    loginManager->say("wake\n");
    ASSERT_TRUE(loginManager->waitForNextOutput("held delay sleep"));
    ASSERT_TRUE(server->waitForNextOutput("Waiting for link")) << server->error();
    writeFile(home / "memo", "after the night\r\n");
    EXPECT_EQ(organiser({"save", organiserPath(home / "memo"), "--as", "MEMO"}).status, 0);
    EXPECT_EQ(contentsOf(psion / "Memo.odb"), "after the night\r\n");
}

TEST_F(SleepTest, AFileThatSleepBreaksOffIsToldBeforehand) {
    ASSERT_NO_FATAL_FAILURE(startLoginManager());
    ASSERT_NO_FATAL_FAILURE(startWaiting());
    const auto save = startLongSave();
    loginManager->say("sleep\n");
    ASSERT_TRUE(loginManager->waitForNextOutput("released delay sleep"));
    EXPECT_TRUE(server->waitForOutput("Long.odb is incomplete")) << server->output();
    EXPECT_TRUE(server->waitForError("The transfer is lost.")) << server->error();
}

TEST_F(SleepTest, TheComputerIsKeptAwakeFromTheOpeningOfAFileToItsEnd) {
    ASSERT_NO_FATAL_FAILURE(startLoginManager());
    ASSERT_NO_FATAL_FAILURE(startWaiting());
    EXPECT_EQ(loginManager->output().find("held block"), std::string::npos) << loginManager->output();
    writeFile(home / "memo", "a record\r\n");
    EXPECT_EQ(organiser({"save", organiserPath(home / "memo"), "--as", "MEMO"}).status, 0);
    EXPECT_TRUE(loginManager->waitForNextOutput("held block sleep:idle"));
    EXPECT_TRUE(loginManager->waitForNextOutput("released block sleep:idle"));
}

TEST_F(SleepTest, AFileThatBreaksOffKeepsTheComputerAwakeNoLonger) {
    ASSERT_NO_FATAL_FAILURE(startLoginManager());
    ASSERT_NO_FATAL_FAILURE(startWaiting());
    const auto save = startLongSave();
    ASSERT_TRUE(loginManager->waitForNextOutput("held block sleep:idle"));
    cable.reset();
    EXPECT_TRUE(loginManager->waitForNextOutput("released block sleep:idle"));
}

TEST_F(SleepTest, WhoMayNotForbidSleepKeepsAnIdleComputerAwake) {
    ASSERT_NO_FATAL_FAILURE(startLoginManager("sleep:idle"));
    ASSERT_NO_FATAL_FAILURE(startWaiting());
    const auto save = startLongSave();
    ASSERT_TRUE(loginManager->waitForNextOutput("refused block sleep:idle"));
    EXPECT_TRUE(loginManager->waitForNextOutput("held block idle"));
}

TEST_F(SleepTest, ALoginManagerThatComesLaterTellsOfSleepToo) {
    startServer({"--wait"});
    ASSERT_TRUE(server->waitForNextOutput("Waiting for link"));
    ASSERT_NO_FATAL_FAILURE(startLoginManager());
    loginManager->say("sleep\n");
    EXPECT_TRUE(server->waitForError("The computer goes to sleep.")) << server->error();
    loginManager->say("wake\n");
    EXPECT_TRUE(server->waitForNextOutput("Waiting for link")) << server->error();
}

TEST_F(SleepTest, WithoutABusFilesMoveAndNothingIsSaid) {
    bus.reset();
    startServer({"--wait"});
    writeFile(home / "memo", "no bus\r\n");
    EXPECT_EQ(organiser({"save", organiserPath(home / "memo"), "--as", "MEMO"}).status, 0);
    stopServer();
    EXPECT_EQ(server->wait(), 0);
    EXPECT_EQ(server->error(), "");
}

TEST_F(SleepTest, ABusThatGoesAwayChangesNothing) {
    ASSERT_NO_FATAL_FAILURE(startLoginManager());
    ASSERT_NO_FATAL_FAILURE(startWaiting());
    bus.reset();
    writeFile(home / "memo", "the bus went\r\n");
    EXPECT_EQ(organiser({"save", organiserPath(home / "memo"), "--as", "MEMO"}).status, 0);
    EXPECT_EQ(contentsOf(psion / "Memo.odb"), "the bus went\r\n");
    EXPECT_EQ(server->error(), "");
}

}  // namespace
}  // namespace velmora::e2e
