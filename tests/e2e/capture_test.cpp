// What passes over the line goes into a file that can be read, and nothing that happens to the file disturbs
// what passes.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

class CaptureTest : public ServerFixture {
  protected:
    std::vector<std::string> capturing(const std::vector<std::string>& more = {}) const {
        std::vector<std::string> options = {"--capture", serverPath(file)};
        options.insert(options.end(), more.begin(), more.end());
        return options;
    }
    void saveRecords(int count, const std::string& text = "record ") {
        std::string records;
        for (int i = 0; i < count; ++i) {
            records += text + std::to_string(i) + "\r\n";
        }
        writeFile(home / "local", records);
        const Finished done = organiser({"save", organiserPath(home / "local"), "--as", "MEMO"});
        EXPECT_EQ(done.status, 0) << done.error;
        EXPECT_TRUE(contentsOf(psion / "Memo.odb") == records);
    }
    void stop() {
        stopServer();
        EXPECT_EQ(server->wait(), 0);
    }
    std::string shown() {
        const Finished done = filesTool({"capture", organiserPath(file)});
        EXPECT_EQ(done.status, 0) << done.error;
        return done.output;
    }
    static bool inOrder(const std::string& text, const std::vector<std::string>& parts) {
        std::size_t place = 0;
        for (const std::string& part : parts) {
            place = text.find(part, place);
            if (place == std::string::npos) {
                ADD_FAILURE() << part << " is missing in\n" << text;
                return false;
            }
            place += part.size();
        }
        return true;
    }

    const std::filesystem::path file = home / "log.pcapng";
};

TEST_F(CaptureTest, TheFilesToolPrintsWhatPassed) {
    startServer(capturing());
    EXPECT_EQ(organiser({"time"}).status, 0);
    stop();
    EXPECT_TRUE(
        inOrder(shown(), {"0.000\tport \t", " 9600,N,8,1\n", "send \tCONNECT\n", "note \tstate: wait link\n",
                          "recv \t1 DATA\tlen=4\tTIME\n", "send \t1 ACK\n", "send \t1 DATA\tlen=19\t",
                          "recv \t1 ACK\n", "note \tport closed\n",
                          "Length: ", "From the Organiser: ", "From the server: ", "  acknowledged in "}));
}

TEST_F(CaptureTest, AMaskedCaptureHasNothingOfTheFiles) {
    startServer(capturing({"--mask"}));
    saveRecords(3, "secret ");
    stop();
    const std::string bytes = contentsOf(file);
    EXPECT_EQ(bytes.find("secret"), std::string::npos);
    EXPECT_EQ(bytes.find("MEMO"), std::string::npos);
    const std::string text = shown();
    EXPECT_TRUE(inOrder(text, {"DATA\tlen=5\tFTRAN\n", "DATA\tlen=7\t<00><01><00>xxxx\n",
                               "DATA\tlen=9\t<02>xxxxxxxx\n", ", masked\n", " 0 bad checks"}));
}

TEST_F(CaptureTest, ALimitedCaptureKeepsTheNewest) {
    startServer(capturing({"--capture-limit", "16K"}));
    saveRecords(100);
    stop();
    EXPECT_LE(std::filesystem::file_size(file), 8U * 1024);
    EXPECT_LE(std::filesystem::file_size(home / "log.earlier.pcapng"), 8U * 1024);
    EXPECT_NE(shown().find("note \tport closed\n"), std::string::npos);
    EXPECT_EQ(filesTool({"capture", organiserPath(home / "log.earlier.pcapng")}).status, 0);
}

TEST_F(CaptureTest, AFileThatCannotGrowIsToldAndDisturbsNoTransfer) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "has no such limit";
    }
    std::vector<std::string> arguments = {"--port", serverPort, "--folder", serverPath(psion)};
    for (const std::string& word : capturing()) {
        arguments.push_back(word);
    }
    std::vector<std::string> command = {"/bin/sh", "-c", "ulimit -f 16; exec \"$0\" \"$@\""};
    for (const std::string& word : serverSide->command("velmorad", arguments)) {
        command.push_back(word);
    }
    server = std::make_unique<Process>(command, serverSide->environment(home, zone));
    ASSERT_TRUE(server->waitForOutput("Waiting for link"));
    saveRecords(300);
    EXPECT_TRUE(server->waitForError("The capture cannot grow: Disk full: ")) << server->error();
    EXPECT_EQ(server->error().find("cannot grow"), server->error().rfind("cannot grow"));
    stop();
    EXPECT_NE(shown().find("Length: "), std::string::npos);
}

TEST_F(CaptureTest, OnlyAFileOrAnotherCaptureIsRecordedInto) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "has no named pipes in folders";
    }
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    const Finished pipe = finish("velmorad", capturing());
    EXPECT_EQ(pipe.status, 2);
    EXPECT_NE(pipe.error.find("--capture " + file.string() + ": "), std::string::npos) << pipe.error;
    std::filesystem::remove(file);
    writeFile(file, "a diary");
    const Finished foreign = finish("velmorad", capturing());
    EXPECT_EQ(foreign.status, 2);
    EXPECT_NE(foreign.error.find("exists and is no capture; it is left as it is"), std::string::npos)
        << foreign.error;
    EXPECT_EQ(contentsOf(file), "a diary");
}

}  // namespace
}  // namespace velmora::e2e
