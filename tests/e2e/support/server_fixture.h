// A server on one end of a cable, an Organiser on the other.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "e2e/support/process.h"
#include "e2e/support/programs_under_test.h"

namespace velmora::e2e {

inline std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream contents;
    contents << file.rdbuf();
    return contents.str();
}

inline void writeFile(const std::filesystem::path& path, const std::string& contents) {
    std::ofstream(path, std::ios::binary) << contents;
}

/// Starts a cable and, on demand, the built server; runs the built Organiser against it. Everything lives in
/// a folder of the test's own that is removed afterwards.
class ServerFixture : public testing::Test {
  protected:
    ServerFixture() {
        std::string pattern = (std::filesystem::temp_directory_path() / "velmora-e2e-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        home = pattern;
        psion = home / "psion";
        std::filesystem::create_directories(psion);
        std::filesystem::create_directories(home / "tmp");
    }
    ~ServerFixture() override {
        server.reset();
        cable.reset();
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }

    void SetUp() override { connectCable({}); }
    /// A server that still serves ends as its user would end it.
    void TearDown() override {
        if (server && server->running()) {
            stopServer();
            EXPECT_EQ(server->wait(), 0) << server->error();
        }
    }

    void connectCable(const std::vector<std::string>& options) {
        std::vector<std::string> arguments = {(nativeTools() / "velmora-cable").string()};
        arguments.insert(arguments.end(), options.begin(), options.end());
        cable = std::make_unique<Process>(arguments);
        ASSERT_TRUE(cable->waitForNextOutput("\n") && cable->waitForNextOutput("\n"));
        std::istringstream lines(cable->output());
        std::getline(lines, serverDevice);
        std::getline(lines, organiserDevice);
        serverPort = serverSide->port(serverDevice);
        organiserPort = organiserSide->port(organiserDevice);
    }

    /// A file or folder as the server, or the Organiser, names it.
    std::string serverPath(const std::filesystem::path& path) const { return serverSide->path(path); }
    std::string organiserPath(const std::filesystem::path& path) const { return organiserSide->path(path); }

    /// Starts a program of the server's side.
    std::unique_ptr<Process> start(const std::string& program,
                                   const std::vector<std::string>& arguments) const {
        return std::make_unique<Process>(serverSide->command(program, arguments),
                                         serverSide->environment(home, zone));
    }
    /// Runs a program of the server's side to its end.
    Finished finish(const std::string& program, const std::vector<std::string>& arguments) const {
        return finished(*start(program, arguments));
    }

    /// Starts velmorad on the cable and waits until it serves.
    void startServer(const std::vector<std::string>& options = {}) {
        std::vector<std::string> arguments = {"--port", serverPort, "--folder", serverPath(psion)};
        arguments.insert(arguments.end(), options.begin(), options.end());
        server = start("velmorad", arguments);
        if (!server->waitForOutput("Waiting for link") && serverSide->lost(finished(*server))) {
            server = start("velmorad", arguments);
        }
        ASSERT_TRUE(server->waitForOutput("Waiting for link"))
            << server->output() << server->error() << "status " << server->wait();
    }
    void stopServer() const { serverSide->stop(*server); }

    /// Starts the Organiser with a command.
    std::unique_ptr<Process> startOrganiser(const std::vector<std::string>& command) const {
        std::vector<std::string> arguments = {"--device", organiserPort};
        arguments.insert(arguments.end(), command.begin(), command.end());
        return std::make_unique<Process>(organiserSide->command("velmora-organiser", arguments),
                                         organiserSide->environment(home, zone));
    }
    /// Kills an Organiser amid its work. The mark of its exclusive use would go with a real port's closing;
    /// here the cable keeps the terminal open.
    void kill(Process& organiser) const {
        organiser.signal(SIGKILL);
        organiser.wait();
        const int terminal = ::open(organiserDevice.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        ASSERT_GE(terminal, 0);
        ::ioctl(terminal, TIOCNXCL);
        ::close(terminal);
    }
    /// Runs the Organiser with a command to its end.
    Finished organiser(const std::vector<std::string>& command,
                       const std::vector<std::string>& faults = {}) const {
        std::vector<std::string> arguments = faults;
        arguments.insert(arguments.end(), command.begin(), command.end());
        const Finished done = finished(*startOrganiser(arguments));
        return organiserSide->lost(done) ? finished(*startOrganiser(arguments)) : done;
    }

    /// Starts a save that is slow enough to be interrupted and waits until the server is at it.
    std::unique_ptr<Process> startLongSave() {
        std::string records;
        for (int i = 0; i < 2000; ++i) {
            records += "record " + std::to_string(i) + "\r\n";
        }
        writeFile(home / "local", records);
        auto save = startOrganiser({"--delay", "5", "save", organiserPath(home / "local"), "--as", "LONG"});
        EXPECT_TRUE(server->waitForOutput("Downloading file"));
        return save;
    }

    /// Runs velmora-files of the Organiser's side on an input; without one its standard input stays open.
    Finished filesTool(const std::vector<std::string>& arguments, const std::string& input = {}) const {
        Process process(organiserSide->command("velmora-files", arguments),
                        organiserSide->environment(home, zone));
        if (!input.empty()) {
            process.feed(input);
        }
        return finished(process);
    }

    std::unique_ptr<ProgramsUnderTest> serverSide = ProgramsUnderTest::ofServer();
    std::unique_ptr<ProgramsUnderTest> organiserSide = ProgramsUnderTest::ofOrganiser();
    std::filesystem::path home;
    std::filesystem::path psion;
    std::string zone = "UTC";
    std::string serverDevice;
    std::string organiserDevice;
    std::string serverPort;  // the devices as the programs name them
    std::string organiserPort;
    std::unique_ptr<Process> cable;
    std::unique_ptr<Process> server;
};

}  // namespace velmora::e2e
