// The desktop program on the cable, as a user has it: started by AutoStart from its configuration file.
#include <gtest/gtest.h>
#include <signal.h>

#include <memory>
#include <string>
#include <vector>

#include "e2e/support/desktop_session_fixture.h"

namespace velmora::e2e {
namespace {

using DesktopTest = DesktopFixture;

TEST_F(DesktopTest, SavesAndLoadsAFileAndEndsOnRequestWithItsSettingsSaved) {
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    startDesktop();
    save("NAMES", "one\ttwo\r\n");
    EXPECT_EQ(contentsOf(psion / "Names.odb"), "one\ttwo\r\n");
    const Finished loaded = organiser({"load", "NAMES", "-o", organiserPath(home / "back")});
    EXPECT_EQ(loaded.status, 0) << loaded.error;
    EXPECT_EQ(contentsOf(home / "back"), "one\ttwo\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
    const std::string saved = contentsOf(ini());
    EXPECT_NE(saved.find("Port=" + port), std::string::npos);
    EXPECT_NE(saved.find("Baud=9600"), std::string::npos);
    EXPECT_NE(saved.find("AutoStart=True"), std::string::npos);
    expectStoredWindowPosition();
}

TEST_F(DesktopTest, ASignalEndsItInOrderGivesThePortBackAndChangesNoSetting) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "a program with windows gets no signals there";
    }
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        writeIni();
        startDesktop();
        save("NAMES", "one\r\n");
        const std::string before = contentsOf(ini());
        server->signal(number);
        EXPECT_EQ(server->wait(), 0) << "signal " << number;
        EXPECT_EQ(contentsOf(ini()), before);
    }
}

TEST_F(DesktopTest, WhoeverReadItsWarningsMayGo) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "a pipe without a reader ends no program there";
    }
    writeIni();
    std::vector<std::string> command{"bash", "-c", R"(exec 2> >(:); wait $!; exec "$@")", "bash"};
    for (const std::string& word : serverSide->command("velmora", {})) {
        command.push_back(word);
    }
    session["QT_LOGGING_RULES"] = "*=true";  // the toolkit has something to say
    server = std::make_unique<Process>(command, desktopVariables());
    save("NAMES", "one\r\n");
    server->signal(SIGTERM);
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(DesktopTest, DebugSwitchInAnyCaseStartsToo) {
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    startDesktop({"-DeBuG"});
    save("NAMES", "one\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(DesktopTest, TheConfigurationFileMayBeAnother) {
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    const std::filesystem::path other = home / "Other.ini";
    std::filesystem::rename(ini(), other);
    startDesktop({"--config", serverPath(other)});
    save("NAMES", "one\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
    EXPECT_FALSE(std::filesystem::exists(ini())) << "the usual one is left alone";
    EXPECT_NE(contentsOf(other).find("AutoStart=True"), std::string::npos);
}

TEST_F(DesktopTest, AProfileHasItsSettingsBesideTheUsualOnes) {
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    const std::filesystem::path other = ini().parent_path() / "Velmora-attic.ini";
    std::filesystem::rename(ini(), other);
    startDesktop({"--profile", "attic"});
    save("NAMES", "one\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
    EXPECT_FALSE(std::filesystem::exists(ini())) << "the usual one is left alone";
    EXPECT_NE(contentsOf(other).find("AutoStart=True"), std::string::npos);
}

using DesktopSessionTest = DesktopSessionFixture;

TEST_F(DesktopSessionTest, ASecondStartLeavesThePortToTheFirst) {
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    startDesktop();
    save("NAMES", "one\r\n");
    const auto second = desktopProcess({});
    EXPECT_EQ(second->wait(), 0) << second->error();
    save("NAMES", "two\r\n");
    EXPECT_EQ(contentsOf(psion / "Names.odb"), "two\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(DesktopSessionTest, ASecondStartOfAProfileLeavesThePortToTheFirst) {
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    std::filesystem::rename(ini(), ini().parent_path() / "Velmora-attic.ini");
    startDesktop({"--profile", "attic"});
    save("NAMES", "one\r\n");
    const auto second = desktopProcess({"--profile", "attic"});
    EXPECT_EQ(second->wait(), 0) << second->error();
    save("NAMES", "two\r\n");
    EXPECT_EQ(contentsOf(psion / "Names.odb"), "two\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(DesktopSessionTest, OneWithAnotherConfigurationIsNoSecond) {
    writeIni();
    const std::filesystem::path other = home / "Other.ini";
    std::filesystem::rename(ini(), other);
    writeFile(ini(), "[Settings]\r\nPort=0\r\n");
    server = desktopProcess({});
    const auto first = std::move(server);
    startDesktop({"--config", serverPath(other)});
    save("NAMES", "one\r\n");
    EXPECT_EQ(contentsOf(psion / "Names.odb"), "one\r\n");
    serverSide->stop(*first);
    EXPECT_EQ(first->wait(), 0) << first->error();
}

}  // namespace
}  // namespace velmora::e2e
