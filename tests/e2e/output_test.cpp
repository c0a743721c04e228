// Where the server's lines go when nobody takes them.
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

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

TEST_F(OutputTest, EachTransferIsALine) {
    startServer();
    writeFile(home / "local", "one\r\ntwo\r\n");
    EXPECT_EQ(organiser({"save", organiserPath(home / "local"), "--as", "MEMO"}).status, 0);
    EXPECT_TRUE(server->waitForOutput(" saved Memo.odb 10 bytes in ")) << server->output();
    EXPECT_EQ(organiser({"load", "MEMO", "-o", organiserPath(home / "copy")}).status, 0);
    EXPECT_TRUE(server->waitForOutput(" loaded Memo.odb 10 bytes in ")) << server->output();
    EXPECT_NE(organiser({"load", "NONE", "-o", organiserPath(home / "none")}).status, 0);
    EXPECT_TRUE(server->waitForOutput(" load of None.odb refused: no such file (189)")) << server->output();
    EXPECT_EQ(organiser({"time"}).status, 0);
    EXPECT_TRUE(server->waitForOutput(" told TIME")) << server->output();
    stopServer();
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(OutputTest, ProgramsReadOneObjectALine) {
    startServer({"--log-format=json"});
    writeFile(home / "local", "one\r\ntwo\r\n");
    EXPECT_EQ(organiser({"save", organiserPath(home / "local"), "--as", "MEMO"}).status, 0);
    EXPECT_TRUE(server->waitForOutput("\"event\":\"transfer-end\""));
    stopServer();
    EXPECT_EQ(server->wait(), 0);
    std::istringstream lines(server->output());
    std::vector<std::string> events;
    for (std::string line; std::getline(lines, line);) {
        const nlohmann::json object = nlohmann::json::parse(line);
        EXPECT_EQ(object.at("time").get<std::string>().size(), std::string("2026-11-22T19:39:35Z").size());
        const std::string event = object.at("event");
        if (event == "transfer-end") {
            EXPECT_EQ(object.at("name"), "Memo.odb");
            EXPECT_EQ(object.at("bytes"), 10);
            EXPECT_EQ(object.at("result"), "complete");
        }
        if (event != "message") {
            events.push_back(event);
        }
    }
    EXPECT_EQ(events, (std::vector<std::string>{"transfer-begin", "transfer-end"}));
}

TEST_F(OutputTest, AProgramRunsAfterEachCompleteFile) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "the program is a shell script";
    }
    const std::filesystem::path script = home / "after";
    writeFile(script, "#!/bin/sh\necho \"after:$1,$2,$3,$4,$VELMORA_NAME\"\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    startServer({"--on-transfer", script.string()});
    writeFile(home / "local", "one\r\ntwo\r\n");
    EXPECT_NE(organiser({"load", "NONE", "-o", organiserPath(home / "none")}).status, 0);
    EXPECT_EQ(organiser({"dir"}).status, 0);
    EXPECT_EQ(organiser({"save", organiserPath(home / "local"), "--as", "MEMO"}).status, 0);
    EXPECT_TRUE(
        server->waitForOutput("after:Memo.odb," + (psion / "Memo.odb").string() + ",save,10,Memo.odb\n"))
        << server->output() << server->error();
    EXPECT_EQ(server->output().find("after:"), server->output().rfind("after:"));
    stopServer();
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(OutputTest, AQuietServerPrintsErrorsOnly) {
    server = start("velmorad", {"--port", "COM37", "--folder", serverPath(psion), "--quiet"});
    EXPECT_EQ(server->wait(), 1);
    EXPECT_EQ(server->output(), "");
    EXPECT_NE(server->error(), "");
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
