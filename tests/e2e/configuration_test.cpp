// What the configuration file says is what the server says and does.
#include <gtest/gtest.h>
#include <signal.h>

#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

class ConfigurationTest : public ServerFixture {
  protected:
    std::filesystem::path iniPath() const { return home / "new.ini"; }
    /// Lets the server write the default file, changes lines of it ("Key=" to a whole line), starts again.
    void startWith(const std::vector<std::pair<std::string, std::string>>& changes) {
        if (!std::filesystem::exists(iniPath())) {
            startServer({"--config", serverPath(iniPath())});
            stopServer();
            ASSERT_EQ(server->wait(), 0);
        }
        std::string text = contentsOf(iniPath());
        for (const auto& [start, line] : changes) {
            const std::size_t begin = text.find("\r\n" + start);
            ASSERT_NE(begin, std::string::npos) << start;
            const std::size_t end = text.find("\r\n", begin + 2);
            text.replace(begin + 2, end - begin - 2, line);
        }
        writeFile(iniPath(), text);
        server = start("velmorad", {"--config", serverPath(iniPath()), "--port", serverPort});
    }
};

TEST_F(ConfigurationTest, AFirstStartWritesTheCommentedFileAndServesWithIt) {
    startServer({"--config", serverPath(iniPath())});
    const std::string text = contentsOf(iniPath());
    EXPECT_NE(text.find("; Velmora.ini:  INI file for Velmora\r\n"), std::string::npos);
    EXPECT_NE(text.find("DataFileType = 0\r\n"), std::string::npos);
    EXPECT_EQ(organiser({"formats"}).status, 0);
}

TEST_F(ConfigurationTest, WithoutANameTheFileLiesInTheUsersConfigurationFolder) {
    const std::filesystem::path file = serverSide->configuration(home);
    ASSERT_FALSE(std::filesystem::exists(file));
    startServer();
    EXPECT_NE(contentsOf(file).find("; Velmora.ini:  INI file for Velmora\r\n"), std::string::npos);
    stopServer();
    EXPECT_EQ(server->wait(), 0) << server->error();
}

TEST_F(ConfigurationTest, TheFilesTextsAreShown) {
    startWith({{"WaitLink=", "WaitLink=\"Hello there\",\" \""},
               {"DownloadPath=", "DownloadPath=" + serverPath(psion)}});
    EXPECT_TRUE(server->waitForOutput("Hello there")) << server->output() << server->error();
}

TEST_F(ConfigurationTest, TheDataFileTypeChoosesTheForm) {
    startWith(
        {{"DataFileType ", "DataFileType = 3"}, {"DownloadPath=", "DownloadPath=" + serverPath(psion)}});
    ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    writeFile(home / "local", "a\tb\r\n");
    ASSERT_EQ(organiser({"save", organiserPath(home / "local"), "--as", "MEMO"}).status, 0);
    EXPECT_EQ(contentsOf(psion / "Memo.csv"), "a;b\r\n");
}

TEST_F(ConfigurationTest, ExitIsIgnoredWhenStopServerIsFalse) {
    startWith({{"StopServer=", "StopServer=False"}});
    ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    EXPECT_EQ(organiser({"exit"}).status, 0);
    EXPECT_EQ(organiser({"formats"}).status, 0) << "still serving";
    EXPECT_TRUE(server->running());
}

TEST_F(ConfigurationTest, ShutdownIsIgnoredWhenAllowShutdownIsFalse) {
    startWith({{"AllowShutdown=", "AllowShutdown=False"}});
    ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    EXPECT_EQ(organiser({"shutdown"}).status, 0);
    EXPECT_EQ(organiser({"formats"}).status, 0) << "still serving";
    EXPECT_TRUE(server->running());
}

TEST_F(ConfigurationTest, AQuestionNobodyCanAnswerIsANo) {
    startWith({{"AskUser=", "AskUser=True"}});
    ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    EXPECT_EQ(organiser({"exit"}).status, 0);
    EXPECT_EQ(organiser({"formats"}).status, 0) << "still serving";
}

TEST_F(ConfigurationTest, TheSectionPortsNamesDevices) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "devices have no names of their own there";
    }
    startWith({{"Port=", "Port=7"}});
    server->signal(SIGKILL);
    server->wait();
    writeFile(iniPath(), contentsOf(iniPath()) + "\r\n[Ports]\r\nCOM7=" + serverDevice + "\r\n");
    cable.reset();
    connectCable({});
    std::string text = contentsOf(iniPath());
    text.replace(text.find("COM7="), std::string::npos, "COM7=" + serverDevice + "\r\n");
    writeFile(iniPath(), text);
    server = start("velmorad", {"--config", serverPath(iniPath())});
    ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    EXPECT_EQ(organiser({"formats"}).status, 0);
}

TEST_F(ConfigurationTest, AFileOfRandomBytesIsLeftAloneAndServedWithDefaults) {
    std::string noise;
    for (int i = 0; i < 5000; ++i) {
        noise += static_cast<char>((i * 7919 + i / 3) & 0xFF);
    }
    writeFile(iniPath(), noise);
    startServer({"--config", serverPath(iniPath())});
    EXPECT_EQ(organiser({"formats"}).status, 0);
    EXPECT_EQ(contentsOf(iniPath()), noise);
}

TEST_F(ConfigurationTest, AFolderInThePlaceOfTheFileEndsTheStartWithTheNameOfTheStep) {
    std::filesystem::create_directories(iniPath());
    const Finished done = finish("velmorad", {"--config", serverPath(iniPath()), "--port", serverPort});
    EXPECT_EQ(done.status, 3);
    EXPECT_NE(done.error.find("load_INIfile"), std::string::npos) << done.error;
    EXPECT_TRUE(std::filesystem::is_directory(iniPath()));
}

TEST_F(ConfigurationTest, AValueThatIsNoneEndsTheStartWithTheNamesOfTheStepAndTheSetting) {
    startWith({{"AutoHide=", "AutoHide=perhaps"}});
    EXPECT_EQ(server->wait(), 3);
    EXPECT_NE(server->error().find("get_Settings"), std::string::npos) << server->error();
    EXPECT_NE(server->error().find("[Settings] AutoHide=perhaps"), std::string::npos) << server->error();
}

TEST_F(ConfigurationTest, WhatTheCommandLineSetsCannotFailTheStart) {
    writeFile(iniPath(), "[Settings]\r\nPort=99999\r\nBaud=99999\r\n; " + std::string(100, '.') + "\r\n");
    server = start("velmorad", {"--config", serverPath(iniPath()), "--port", serverPort, "--baud", "9600"});
    EXPECT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
}

TEST_F(ConfigurationTest, TheEffectiveSettingsArePrintedAndNothingIsMade) {
    const std::vector<std::string> arguments = {"--config", serverPath(iniPath()), "--folder",
                                                serverPath(psion), "--print-config"};
    const Finished first = finish("velmorad", arguments);
    EXPECT_EQ(first.status, 0) << first.error;
    EXPECT_NE(first.output.find(" (not there yet: a start writes it)\n"), std::string::npos) << first.output;
    EXPECT_NE(first.output.find("--folder  [Settings] DownloadPath=" + serverPath(psion) + "\n"),
              std::string::npos)
        << first.output;
    EXPECT_NE(first.output.find("default   [Settings] Baud=9600\n"), std::string::npos) << first.output;
    EXPECT_FALSE(std::filesystem::exists(iniPath()));
    writeFile(iniPath(), "[Settings]\r\nBaud=1200\r\n; " + std::string(100, '.') + "\r\n");
    const Finished second = finish("velmorad", arguments);
    EXPECT_EQ(second.status, 0) << second.error;
    EXPECT_NE(second.output.find("file      [Settings] Baud=1200\n"), std::string::npos) << second.output;
}

TEST_F(ConfigurationTest, SettingsThatFailAStartAreNotPrinted) {
    writeFile(iniPath(), "[Settings]\r\nAutoHide=perhaps\r\n; " + std::string(100, '.') + "\r\n");
    const Finished done = finish("velmorad", {"--config", serverPath(iniPath()), "--print-config"});
    EXPECT_EQ(done.status, 3);
    EXPECT_EQ(done.output, "");
    EXPECT_NE(done.error.find("[Settings] AutoHide=perhaps"), std::string::npos) << done.error;
    const Finished mistyped = finish("velmorad", {"--folder", serverPath(home / "gone"), "--print-config"});
    EXPECT_EQ(mistyped.status, 2);
}

TEST_F(ConfigurationTest, AFileThatIsWrittenIsTold) {
    startServer({"--config", serverPath(iniPath())});
    EXPECT_NE(server->output().find("Wrote the default settings to " + serverPath(iniPath())),
              std::string::npos)
        << server->output();
}

TEST_F(ConfigurationTest, AShortFileIsKeptAndTold) {
    const std::string stump = "[Settings]\r\nDataFileType=2\r\n";
    writeFile(iniPath(), stump);
    startServer({"--config", serverPath(iniPath())});
    EXPECT_EQ(contentsOf(home / "new.ini.old"), stump);
    EXPECT_NE(server->error().find("new.ini.old"), std::string::npos) << server->error();
}

TEST_F(ConfigurationTest, AFolderOfTheCommandLineThatIsNotThereEndsTheStartAndNothingIsMade) {
    writeFile(home / "file", "");
    for (const std::string folder : {"none", "file"}) {
        Finished done = finish("velmorad", {"--config", serverPath(iniPath()), "--port", serverPort,
                                            "--folder", serverPath(home / folder)});
        EXPECT_EQ(done.status, 2) << done.error;
        EXPECT_EQ(done.error, "velmorad: --folder: " + serverPath(home / folder) + " is no folder\n");
        done = finish("velmorad", {"--config", serverPath(home / folder / "new.ini"), "--port", serverPort});
        EXPECT_EQ(done.status, 2) << done.error;
        EXPECT_NE(done.error.find("--config"), std::string::npos) << done.error;
    }
    EXPECT_FALSE(std::filesystem::exists(iniPath()));
    EXPECT_FALSE(std::filesystem::exists(home / "none"));
    EXPECT_FALSE(std::filesystem::exists(home / "Documents"));
}

TEST_F(ConfigurationTest, AMissingFolderOfTheFileIsToldWithTheOneThatIsUsed) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "the documents folder is the prefix's own";
    }
    startWith({{"DownloadPath=", "DownloadPath=" + (home / "none").string()}});
    ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    EXPECT_NE(server->error().find((home / "none").string()), std::string::npos) << server->error();
    EXPECT_NE(server->error().find((home / "Documents" / "Psion Files").string()), std::string::npos)
        << server->error();
}

TEST_F(ConfigurationTest, AUtf16FileIsToldOrRead) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "the system reads it";
    }
    std::string text = "\xFF\xFE";
    for (const char c : "[Settings]\r\nDataFileType=2\r\n; a comment that makes the file long enough\r\n") {
        if (c != 0) {
            text += {c, '\0'};
        }
    }
    writeFile(iniPath(), text);
    const Finished done = finish("velmorad", {"--config", serverPath(iniPath()), "--port", serverPort});
    EXPECT_EQ(done.status, 3);
    EXPECT_NE(done.error.find("is UTF-16"), std::string::npos) << done.error;
    EXPECT_TRUE(contentsOf(iniPath()) == text);
}

}  // namespace
}  // namespace velmora::e2e
