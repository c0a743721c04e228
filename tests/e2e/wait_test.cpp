// A server that waits for its port.
#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

namespace fs = std::filesystem;

/// The server's port is a link, as the device manager makes them; what it points to comes and goes.
class WaitTest : public ServerFixture {
  protected:
    void SetUp() override {
        if (serverSide->windows()) {
            GTEST_SKIP() << "links to terminals as POSIX systems have them";
        }
        ServerFixture::SetUp();
    }
    fs::path link() const { return home / "adapter"; }
    /// The link leads to the cable that is there now.
    void point() const {
        const fs::path made = home / "made";
        fs::create_symlink(serverDevice, made);
        fs::rename(made, link());
    }
    /// Pulls the cable. The link goes with it, as the device manager's do: the number of a terminal that is
    /// gone may be that of somebody else's next one, which a server that waits would then take.
    void pullCable() {
        fs::remove(link());
        cable.reset();
    }
    /// Pulls the cable and plugs another one in.
    void replaceCable() {
        pullCable();
        connectCable({});
        point();
    }
    void startWaiting(const std::vector<std::string>& options = {}) {
        std::vector<std::string> arguments{"--wait", "--port", link(), "--folder", psion};
        arguments.insert(arguments.end(), options.begin(), options.end());
        server = start("velmorad", arguments);
    }
    std::size_t told(const std::string& text) const {
        std::size_t count = 0;
        const std::string& said = server->error();
        for (std::size_t at = said.find(text); at != said.npos; at = said.find(text, at + 1)) {
            ++count;
        }
        return count;
    }
};

TEST_F(WaitTest, ALinkThatIsPointedElsewhereTwentyTimesAmidTransfersLosesNoNextFile) {
    point();
    startWaiting();
    ASSERT_TRUE(server->waitForNextOutput("Waiting for link")) << server->error();
    constexpr int kPlugs = 20;
    for (int plug = 0; plug < kPlugs; ++plug) {
        SCOPED_TRACE(plug);
        {
            const auto interrupted = startLongSave();
            ASSERT_TRUE(server->waitForNextOutput("Downloading file")) << server->error();
            replaceCable();
        }
        ASSERT_TRUE(server->waitForNextOutput("Waiting for link")) << server->output() << server->error();
        std::string records;
        for (int record = 0; record < 50; ++record) {
            records += "plug " + std::to_string(plug) + " record " + std::to_string(record) + "\r\n";
        }
        writeFile(home / "next", records);
        const Finished next = organiser({"save", organiserPath(home / "next"), "--as", "NEXT"});
        ASSERT_EQ(next.status, 0) << next.output << next.error << server->output() << server->error();
        ASSERT_EQ(contentsOf(psion / "Next.odb"), records);
        ASSERT_TRUE(server->waitForNextOutput("Waiting for link")) << server->error();
    }
    EXPECT_EQ(told("Velmora goes on when it is plugged in again."), kPlugs) << server->error();
    EXPECT_TRUE(server->running());
    stopServer();
    EXPECT_EQ(server->wait(), 0) << server->error();
}

TEST_F(WaitTest, AFileThatWasOpenIsToldToBeIncomplete) {
    point();
    startWaiting();
    ASSERT_TRUE(server->waitForNextOutput("Waiting for link")) << server->error();
    const auto interrupted = startLongSave();
    pullCable();
    EXPECT_TRUE(server->waitForOutput("Long.odb is incomplete")) << server->output() << server->error();
    EXPECT_TRUE(server->waitForError("The transfer is lost. Velmora goes on when it is plugged in again."))
        << server->error();
    EXPECT_EQ(server->error().find("nobody to ask"), std::string::npos) << server->error();
}

TEST_F(WaitTest, APortThatIsMissingAtTheStartIsServedWithinTwoSecondsOfItsComing) {
    startWaiting();
    ASSERT_TRUE(server->waitForError("Waiting for it.")) << server->output();
    const auto comes = std::chrono::steady_clock::now();
    point();
    ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    const auto served = std::chrono::steady_clock::now() - comes;
    RecordProperty("served_after_ms",
                   static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(served).count()));
    EXPECT_EQ(told("is not accessible!"), 1U) << server->error();
}

TEST_F(WaitTest, ALinkToSomethingThatIsNoTerminalIsToldOnceAndWaitedFor) {
    writeFile(home / "file", "no terminal");
    fs::create_symlink(home / "file", link());
    startWaiting();
    ASSERT_TRUE(server->waitForError("is not a serial port.")) << server->output();
    point();
    ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    EXPECT_EQ(told("is not a serial port."), 1U) << server->error();
    EXPECT_EQ(contentsOf(home / "file"), "no terminal");
}

TEST_F(WaitTest, AServerThatWaitsCanBeStopped) {
    startWaiting();
    ASSERT_TRUE(server->waitForError("Waiting for it."));
    stopServer();
    EXPECT_EQ(server->wait(), 0) << server->error();
}

TEST_F(WaitTest, WithoutADeviceManagerThatIsSaidOnceHereAndInTheTrace) {
    startWaiting({"--trace-file", home / "trace"});
    ASSERT_TRUE(server->waitForError("Waiting for it."));
    stopServer();
    EXPECT_EQ(server->wait(), 0) << server->error();
    const bool runs = fs::exists("/run/udev/control");
    const auto count = [](const std::string& text) {
        const std::string news = "The system tells nothing of adapters";
        const std::size_t first = text.find(news);
        return first == text.npos ? 0 : text.find(news, first + 1) == text.npos ? 1 : 2;
    };
    EXPECT_EQ(count(server->output()), runs ? 0 : 1) << server->output();
    EXPECT_EQ(count(contentsOf(home / "trace")), runs ? 0 : 1) << contentsOf(home / "trace");
}

TEST_F(WaitTest, WithoutAConfiguredPortTheFirstOneThatComesIsServed) {
    std::string configuration = "[Ports]\r\nCOM7=" + link().string() + "\r\n";
    for (int number = 1; number <= 64; ++number) {
        if (number != 7) {
            configuration += "COM" + std::to_string(number) + "=" + (home / "none").string() + "\r\n";
        }
    }
    writeFile(home / "none.ini", configuration);
    server = start("velmorad", {"--wait", "--config", home / "none.ini", "--folder", psion});
    ASSERT_TRUE(server->waitForError("name one with --port. Waiting for another one.")) << server->output();
    point();
    ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    EXPECT_TRUE(server->waitForOutput("Found COM7, " + link().string())) << server->output();
    EXPECT_EQ(told("Waiting for another one."), 1U) << server->error();
}

TEST_F(WaitTest, ANumberThatStandsForNoDeviceIsToldOnceAndWaitedFor) {
    writeFile(home / "number.ini", "[Settings]\r\nPort=99\r\n;" + std::string(200, '-') + "\r\n");
    server = start("velmorad", {"--wait", "--config", home / "number.ini", "--folder", psion});
    ASSERT_TRUE(server->waitForError("Waiting for it.")) << server->output();
    stopServer();
    EXPECT_EQ(server->wait(), 0) << server->error();
    EXPECT_EQ(told("Port COM99 is not accessible! "), 1U) << server->error();
}

TEST_F(WaitTest, AnAdapterThatWasNeverSeenIsWaitedForByItsName) {
    writeFile(home / "identity.ini", "[Settings]\r\nPort=5\r\nPortIdentity=0403:6001:NEVERSEEN\r\n;" +
                                         std::string(200, '-') + "\r\n");
    server = start("velmorad", {"--wait", "--config", home / "identity.ini", "--folder", psion});
    ASSERT_TRUE(server->waitForError("Waiting for it.")) << server->output();
    EXPECT_NE(server->error().find("usb:0403:6001:NEVERSEEN"), std::string::npos) << server->error();
    stopServer();
    EXPECT_EQ(server->wait(), 0) << server->error();
}

TEST_F(WaitTest, WithoutTheOptionALostPortEndsTheServerAsBefore) {
    point();
    server = start("velmorad", {"--port", link(), "--folder", psion});
    ASSERT_TRUE(server->waitForNextOutput("Waiting for link")) << server->error();
    cable.reset();
    EXPECT_EQ(server->wait(), 1) << server->error();
    EXPECT_EQ(told("goes on"), 0U) << server->error();
}

}  // namespace
}  // namespace velmora::e2e
