// What is saved is whole and where it belongs: links, killed servers.
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
    Finished saveSheet(const std::string& name) {
        writeFile(home / "cells", "A1 1\nB1 2\n");
        return organiser({"sheet-save", organiserPath(home / "cells"), "--as", name, "--format", "csv"});
    }
};

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
