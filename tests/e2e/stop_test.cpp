// How the server ends: by request of the Organiser, by a signal, by a port that is not there or goes away.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <string>
#include <system_error>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

/// A modem at the other end of the line.
class Modem {
  public:
    explicit Modem(const std::string& device) : line_(::open(device.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC)) {
        if (line_ < 0) {
            throw std::system_error(errno, std::generic_category(), device);
        }
    }
    ~Modem() { ::close(line_); }
    Modem(const Modem&) = delete;
    Modem& operator=(const Modem&) = delete;

    /// Takes what comes within a moment; true when it is a probe.
    bool listen() {
        pollfd watched{line_, POLLIN, 0};
        std::array<char, 64> buffer{};
        if (::poll(&watched, 1, 20) <= 0 || ::read(line_, buffer.data(), buffer.size()) <= 0) {
            return false;
        }
        ++probes_;
        return true;
    }
    void answer() const { EXPECT_EQ(::write(line_, "OK\r", 3), 3); }
    int probes() const { return probes_; }

  private:
    int line_;
    int probes_ = 0;
};

using StopTest = ServerFixture;

TEST_F(StopTest, AnAcceptedExitEndsTheServerWithStatusZero) {
    startServer();
    EXPECT_EQ(organiser({"exit"}).status, 0);
    EXPECT_EQ(server->wait(), 0) << server->error();
}

TEST_F(StopTest, AnAcceptedShutdownEndsTheServerWithStatusZero) {
    startServer();
    EXPECT_EQ(organiser({"shutdown"}).status, 0);
    EXPECT_EQ(server->wait(), 0) << server->error();
}

TEST_F(StopTest, ASignalWhileWaitingEndsTheServerWithStatusZero) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        if (number != SIGINT && serverSide->windows()) {
            continue;  // has no counterpart there
        }
        startServer();
        server->signal(number);
        EXPECT_EQ(server->wait(), 0) << server->error();
    }
}

TEST_F(StopTest, AHangUpThatItsCallerHasSwitchedOffDoesNotEndTheServer) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "has no counterpart there";
    }
    std::vector<std::string> command = {"nohup"};
    for (const std::string& word :
         serverSide->command("velmorad", {"--port", serverPort, "--folder", serverPath(psion)})) {
        command.push_back(word);
    }
    server = std::make_unique<Process>(command, serverSide->environment(home, zone));
    ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    server->signal(SIGHUP);
    EXPECT_EQ(organiser({"formats"}).status, 0) << "still serving";
    server->signal(SIGTERM);
    EXPECT_EQ(server->wait(), 0) << server->error();
}

TEST_F(StopTest, ASignalEndsThePortSearchWithThePortThatIsBeingTested) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "devices have no names of their own there";
    }
    std::string ini =
        "[Settings]\r\nPort=0\r\nDontTestModem=False\r\nDownloadPath=" + psion.string() + "\r\n[Ports]\r\n";
    for (int number = 1; number <= 64; ++number) {
        ini += "COM" + std::to_string(number) + "=" + serverDevice + "\r\n";
    }
    writeFile(home / "search.ini", ini);
    Modem modem(organiserDevice);
    server = start("velmorad", {"--config", (home / "search.ini").string()});
    while (modem.probes() == 0 && server->running()) {
        modem.listen();
    }
    server->signal(SIGTERM);
    modem.answer();  // so that a search that went on would test the next port
    while (server->running()) {
        if (modem.listen()) {
            modem.answer();
        }
    }
    EXPECT_EQ(server->wait(), 0) << server->error();
    EXPECT_EQ(modem.probes(), 1);
    EXPECT_EQ(server->error(), "");
}

TEST_F(StopTest, ASignalInTheMiddleOfASaveClosesTheFileAndLeavesWholeRecords) {
    startServer();
    const auto save = startLongSave();
    stopServer();
    EXPECT_EQ(server->wait(), 0) << server->error();
    const std::string stored = contentsOf(psion / "Long.odb");
    EXPECT_EQ(stored, contentsOf(home / "local").substr(0, stored.size()));
    EXPECT_TRUE(stored.empty() || stored.ends_with("\r\n"));
    startServer();  // the port was released
}

TEST_F(StopTest, AnOrganiserThatVanishesLeavesWholeRecordsAndTheNextOneIsServed) {
    startServer();
    auto save = startLongSave();
    kill(*save);
    EXPECT_EQ(organiser({"formats"}).status, 0);
    const std::string stored = contentsOf(psion / "Long.odb");
    EXPECT_EQ(stored, contentsOf(home / "local").substr(0, stored.size()));
    EXPECT_TRUE(stored.empty() || stored.ends_with("\r\n"));
}

TEST_F(StopTest, AMissingPortEndsTheServerWithOneAndOneLine) {
    const std::string missing = serverSide->windows() ? "COM98" : (home / "none").string();
    const Finished done = finish("velmorad", {"--port", missing, "--folder", serverPath(psion)});
    EXPECT_EQ(done.status, 1);
    EXPECT_EQ(std::count(done.error.begin(), done.error.end(), '\n'), 1) << done.error;
    EXPECT_EQ(done.error.find("velmorad: Port " + missing + " "), 0U) << done.error;
}

TEST_F(StopTest, WithoutAFreePortTheServerEndsWithOneAndOneLine) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "devices have no names of their own there";
    }
    std::string ini = "[Settings]\r\nPort=0\r\n[Ports]\r\n";
    for (int number = 1; number <= 64; ++number) {
        ini += "COM" + std::to_string(number) + "=" + (home / "none").string() + "\r\n";
    }
    writeFile(home / "none.ini", ini);
    const Finished done =
        finish("velmorad", {"--config", (home / "none.ini").string(), "--folder", serverPath(psion)});
    EXPECT_EQ(done.status, 1);
    EXPECT_EQ(done.error,
              "velmorad: No port selected! None of COM1 to COM64 is free; name one with --port.\n");
}

TEST_F(StopTest, ASearchSaysWhichPortItTook) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "devices have no names of their own there";
    }
    std::string ini = "[Settings]\r\nPort=0\r\nDontTestModem=True\r\n[Ports]\r\n";
    for (int number = 1; number <= 6; ++number) {
        ini += "COM" + std::to_string(number) + "=" + (number < 6 ? (home / "none").string() : serverDevice) +
               "\r\n";
    }
    writeFile(home / "search.ini", ini);
    server = start("velmorad", {"--config", (home / "search.ini").string(), "--folder", serverPath(psion)});
    EXPECT_TRUE(server->waitForOutput("Found COM6, " + serverDevice + "\n")) << server->output();
    cable->signal(SIGKILL);
    EXPECT_EQ(server->wait(), 1);
    EXPECT_NE(server->error().find("COM6"), std::string::npos) << server->error();
}

TEST_F(StopTest, ATraceFileThatCannotBeMadeEndsTheServerWithTwo) {
    const Finished done = finish("velmorad", {"--port", serverPort, "--folder", serverPath(psion),
                                              "--trace-file", serverPath(home / "none" / "trace")});
    EXPECT_EQ(done.status, 2);
    EXPECT_NE(done.error.find("--trace-file"), std::string::npos) << done.error;
}

TEST_F(StopTest, AMissingPortNumberEndsTheServerWithOne) {
    const Finished done = finish("velmorad", {"--port", "COM99", "--folder", serverPath(psion)});
    EXPECT_EQ(done.status, 1);
    EXPECT_NE(done.error.find("COM99"), std::string::npos) << done.error;
}

TEST_F(StopTest, APortThatAnotherServerHoldsEndsTheSecondWithOne) {
    if (serverSide->windows()) {
        // Wine opens a port twice, but not one that another program of this machine holds.
        connectCable({"--held"});
    } else {
        startServer();
    }
    const Finished done = finish("velmorad", {"--port", serverPort, "--folder", serverPath(psion)});
    EXPECT_EQ(done.status, 1);
    EXPECT_NE(done.error.find("in use"), std::string::npos) << done.error;
    if (server) {
        EXPECT_EQ(organiser({"formats"}).status, 0) << "the first goes on serving";
    }
}

TEST_F(StopTest, ALineThatGoesAwayEndsTheServerWithOneAndOneLine) {
    startServer();
    cable->signal(SIGKILL);
    cable->wait();
    EXPECT_EQ(server->wait(), 1);
    EXPECT_EQ(std::count(server->error().begin(), server->error().end(), '\n'), 1) << server->error();
}

TEST_F(StopTest, AServerWhoseOutputNobodyReadsGoesOnServing) {
    startServer();
    server->closeOutput();
    EXPECT_EQ(organiser({"formats"}).status, 0);
    EXPECT_EQ(organiser({"formats"}).status, 0);
    EXPECT_TRUE(server->running());
}

TEST_F(StopTest, WithoutAServerTheOrganiserReportsNoLink) {
    const Finished done = organiser({"formats"});
    EXPECT_EQ(done.status, 4) << done.output << done.error;
}

TEST_F(StopTest, ANonsensicalCommandLineEndsWithTwo) {
    const Finished done = finish("velmorad", {"--bogus"});
    EXPECT_EQ(done.status, 2);
    EXPECT_NE(done.error.find("--bogus"), std::string::npos) << done.error;
}

}  // namespace
}  // namespace velmora::e2e
