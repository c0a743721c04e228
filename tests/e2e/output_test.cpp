// Where the server's lines go when nobody takes them.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

class OutputTest : public ServerFixture {
  protected:
    /// More of a trace than a pipe holds.
    void saveMuch() {
        std::string records;
        for (int i = 0; i < 600; ++i) {
            records += "record " + std::to_string(i) + "\r\n";
        }
        writeFile(home / "local", records);
        const Finished done = organiser({"save", organiserPath(home / "local"), "--as", "LONG"});
        EXPECT_EQ(done.status, 0) << done.error;
        EXPECT_TRUE(contentsOf(psion / "Long.odb") == records);
    }
};

TEST_F(OutputTest, AServerWhoseOutputNobodyReadsGoesOnServingAndCountsTheLinesThatItLost) {
    startServer({"--trace"});
    saveMuch();
    EXPECT_TRUE(server->waitForError(" lines lost\n")) << server->error().size();
    stopServer();
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(OutputTest, AServerWhoseOutputNobodyReadsEndsOnASignal) {
    startServer({"--trace"});
    saveMuch();
    stopServer();
    ASSERT_TRUE(server->endsUnread());
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(OutputTest, AServerWithoutStandardStreamsKeepsItsLinesFromTheSerialLine) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "has no counterpart there";
    }
    std::vector<std::string> command = {"/bin/sh", "-c", "exec \"$0\" \"$@\" <&- >&- 2>&-"};
    for (const std::string& word :
         serverSide->command("velmorad", {"--port", serverPort, "--folder", serverPath(psion), "--trace"})) {
        command.push_back(word);
    }
    server = std::make_unique<Process>(command, serverSide->environment(home, zone));
    EXPECT_EQ(organiser({"formats"}).status, 0);
    for (const char* descriptor : {"0", "1", "2"}) {
        const std::filesystem::path link = "/proc/" + std::to_string(server->id()) + "/fd/" + descriptor;
        EXPECT_EQ(std::filesystem::read_symlink(link), "/dev/null") << descriptor;
    }
    stopServer();
    EXPECT_EQ(server->wait(), 0);
}

}  // namespace
}  // namespace velmora::e2e
