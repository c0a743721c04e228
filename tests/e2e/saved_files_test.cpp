// What is saved is whole and where it belongs: limits, links, killed servers.
#include <gtest/gtest.h>
#include <signal.h>

#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

namespace fs = std::filesystem;

class SavedFilesTest : public ServerFixture {
  protected:
    void SetUp() override {
        if (serverSide->windows()) {
            GTEST_SKIP() << "limits, links and signals as POSIX systems have them";
        }
        ServerFixture::SetUp();
    }
    /// Starts velmorad with a limit to the size of files, in KiB.
    void startLimitedServer(int limit) {
        std::vector<std::string> arguments = {
            "bash", "-c", "ulimit -f " + std::to_string(limit) + "; exec \"$@\"", "limited"};
        const std::vector<std::string> command =
            serverSide->command("velmorad", {"--port", serverPort, "--folder", serverPath(psion)});
        arguments.insert(arguments.end(), command.begin(), command.end());
        server = std::make_unique<Process>(arguments, serverSide->environment(home, zone));
        ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->output() << server->error();
    }
    Finished save(const std::string& name, const std::string& contents, const std::string& type = "data") {
        writeFile(home / "local", contents);
        return organiser({"save", organiserPath(home / "local"), "--as", name, "--type", type});
    }
    Finished saveSheet(const std::string& name) {
        writeFile(home / "cells", "A1 1\nB1 2\n");
        return organiser({"sheet-save", organiserPath(home / "cells"), "--as", name, "--format", "csv"});
    }
};

TEST_F(SavedFilesTest, ALimitToTheSizeOfFilesCountsAsAFullDisk) {
    constexpr int kLimit = 16;
    startLimitedServer(kLimit);
    std::string records;
    for (int i = 0; i < 400; ++i) {
        records += "record " + std::to_string(i) + std::string(60, '.') + "\r\n";
    }
    const Finished refused = save("LONG", records);
    EXPECT_NE(refused.status, 0);
    EXPECT_NE((refused.output + refused.error).find("186"), std::string::npos)
        << refused.output << refused.error;
    const std::string stored = contentsOf(psion / "Long.odb");
    EXPECT_LE(stored.size(), std::size_t{kLimit} * 1024);
    EXPECT_GT(stored.size(), std::size_t{kLimit} * 1024 - 80);
    EXPECT_EQ(stored, records.substr(0, stored.size()));
    EXPECT_TRUE(stored.ends_with("\r\n")) << "whole records only";

    const Finished next = save("SHORT", "one\r\n");
    EXPECT_EQ(next.status, 0) << next.output << next.error << server->error();
    EXPECT_EQ(contentsOf(psion / "Short.odb"), "one\r\n");
}

TEST_F(SavedFilesTest, ASheetSavedOverALinkReachesTheFileBehindIt) {
    startServer();
    fs::create_directories(home / "elsewhere");
    writeFile(home / "elsewhere" / "real.csv", "old");
    fs::create_symlink("../elsewhere/real.csv", psion / "Sheet.csv");
    const Finished saved = saveSheet("SHEET");
    EXPECT_EQ(saved.status, 0) << saved.output << saved.error;
    EXPECT_TRUE(fs::is_symlink(psion / "Sheet.csv"));
    EXPECT_EQ(contentsOf(home / "elsewhere" / "real.csv"), contentsOf(psion / "Sheet.csv"));
    EXPECT_NE(contentsOf(home / "elsewhere" / "real.csv"), "old");
}

TEST_F(SavedFilesTest, WhatAKilledServerLeftIsNeverListedAndGoneAtTheNextStart) {
    startServer();
    writeFile(psion / ".velmora-a1b2c3.tmp", "half a sheet");
    writeFile(psion / "Mine.txt", "mine");
    const Finished listed = organiser({"dir", "--long"});
    EXPECT_NE(listed.output.find("Mine.txt"), std::string::npos) << listed.output << listed.error;
    EXPECT_EQ(listed.output.find("velmora"), std::string::npos) << listed.output;
    server->signal(SIGKILL);
    server->wait();
    connectCable({});  // the killed server's hold on the line ends with the line
    startServer();
    EXPECT_FALSE(fs::exists(psion / ".velmora-a1b2c3.tmp"));
    EXPECT_TRUE(fs::exists(psion / "Mine.txt"));
}

}  // namespace
}  // namespace velmora::e2e
