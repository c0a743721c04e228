// A save that breaks off does not take the earlier, whole file with it, and is told.
#include <gtest/gtest.h>
#include <signal.h>

#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

namespace fs = std::filesystem;

class EarlierCopiesTest : public ServerFixture {
  protected:
    /// The earlier copies, in the order of their names.
    std::vector<fs::path> copies() const {
        std::vector<fs::path> found;
        if (const fs::path folder = serverSide->earlierCopies(home); fs::exists(folder)) {
            found.assign(fs::directory_iterator(folder), fs::directory_iterator());
        }
        std::sort(found.begin(), found.end());
        return found;
    }
    /// The line that the server printed about the broken save of Long.odb.
    std::string lineAboutIt() {
        EXPECT_TRUE(server->waitForOutput("Long.odb is incomplete")) << server->output();
        const std::string& output = server->output();
        const std::size_t start = output.find("Long.odb is incomplete");
        return output.substr(start, output.find_first_of("\r\n", start) - start);
    }
    void expectTheWholeFileIsKept() {
        const std::string line = lineAboutIt();
        ASSERT_EQ(copies().size(), 1U) << line;
        EXPECT_EQ(contentsOf(copies()[0]), whole);
        const std::string name = copies()[0].filename().string();
        EXPECT_NE(line.find(" bytes arrived. Earlier copy: "), std::string::npos) << line;
        EXPECT_TRUE(line.ends_with(name)) << line;
        EXPECT_TRUE(name.starts_with("Long (20") && name.ends_with(").odb")) << name;
        EXPECT_NE(contentsOf(psion / "Long.odb"), whole);
    }

    const std::string whole = "the\tearlier\r\nfile\twhole\r\n";
};

TEST_F(EarlierCopiesTest, ASignalInASaveLeavesTheEarlierFileAndIsTold) {
    writeFile(psion / "Long.odb", whole);
    startServer();
    const auto save = startLongSave();
    stopServer();
    EXPECT_EQ(server->wait(), 0) << server->error();
    expectTheWholeFileIsKept();
}

TEST_F(EarlierCopiesTest, AnOrganiserThatVanishesLeavesTheEarlierFileAndIsTold) {
    writeFile(psion / "Long.odb", whole);
    startServer();
    const auto save = startLongSave();
    kill(*save);
    EXPECT_EQ(organiser({"formats"}).status, 0);
    expectTheWholeFileIsKept();
}

TEST_F(EarlierCopiesTest, ALineThatGoesAwayInASaveIsToldToo) {
    writeFile(psion / "Long.odb", whole);
    startServer();
    const auto save = startLongSave();
    cable->signal(SIGKILL);
    EXPECT_EQ(server->wait(), 1);
    expectTheWholeFileIsKept();
}

TEST_F(EarlierCopiesTest, AWholeSaveKeepsTheEarlierFileForTheUserAloneAndSaysNothing) {
    writeFile(psion / "Long.odb", whole);
    writeFile(home / "local", "new\r\n");
    startServer();
    EXPECT_EQ(organiser({"save", organiserPath(home / "local"), "--as", "LONG"}).status, 0);
    stopServer();
    server->wait();
    EXPECT_EQ(contentsOf(psion / "Long.odb"), "new\r\n");
    ASSERT_EQ(copies().size(), 1U);
    EXPECT_EQ(contentsOf(copies()[0]), whole);
    EXPECT_EQ(server->output().find("incomplete"), std::string::npos) << server->output();
    if (!serverSide->windows()) {
        EXPECT_EQ(fs::status(serverSide->earlierCopies(home)).permissions(), fs::perms::owner_all);
    }
}

TEST_F(EarlierCopiesTest, TheSettingsMayWantNone) {
    writeFile(serverSide->configuration(home),
              "; " + std::string(100, '-') + "\r\n[Settings]\r\nEarlierCopies=0\r\n");
    writeFile(psion / "Long.odb", whole);
    writeFile(home / "local", "new\r\n");
    startServer();
    EXPECT_EQ(organiser({"save", organiserPath(home / "local"), "--as", "LONG"}).status, 0);
    EXPECT_TRUE(copies().empty());
}

TEST_F(EarlierCopiesTest, OldOnesAreRemovedWhenTheServerStarts) {
    const fs::path folder = serverSide->earlierCopies(home);
    fs::create_directories(folder);
    writeFile(folder / "Memo (2001-02-03 04.05.06).odb", "old");
    writeFile(folder / "Memo.odb", "no copy");
    startServer();
    stopServer();
    server->wait();
    ASSERT_EQ(copies().size(), 1U);
    EXPECT_EQ(copies()[0].filename(), "Memo.odb");
}

}  // namespace
}  // namespace velmora::e2e
