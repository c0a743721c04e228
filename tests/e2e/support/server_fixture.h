// A server on one end of a cable, an Organiser on the other.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "e2e/support/process.h"

namespace velmora::e2e {

inline std::string program(const std::string& name) {
    return std::string(VELMORA_BIN_DIR) + "/" + name;
}

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
    }
    ~ServerFixture() override {
        server.reset();
        cable.reset();
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }

    void SetUp() override { connectCable({}); }

    void connectCable(const std::vector<std::string>& options) {
        std::vector<std::string> arguments = {VELMORA_TOOLS_DIR "/velmora-cable"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        cable = std::make_unique<Process>(arguments);
        ASSERT_TRUE(cable->waitForNextOutput("\n") && cable->waitForNextOutput("\n"));
        std::istringstream lines(cable->output());
        std::getline(lines, serverDevice);
        std::getline(lines, organiserDevice);
    }

    /// The server's environment: no configuration of whoever runs the tests.
    std::map<std::string, std::string> environment() const {
        return {{"HOME", home.string()},
                {"XDG_CONFIG_HOME", (home / "config").string()},
                {"TMPDIR", (home / "tmp").string()},
                {"TZ", zone},
                {"LC_ALL", "C.UTF-8"}};
    }

    /// Starts velmorad on the cable and waits until it serves.
    void startServer(const std::vector<std::string>& options = {}) {
        std::filesystem::create_directories(home / "tmp");
        std::vector<std::string> arguments = {program("velmorad"), "--port", serverDevice, "--folder",
                                              psion.string()};
        arguments.insert(arguments.end(), options.begin(), options.end());
        server = std::make_unique<Process>(arguments, environment());
        ASSERT_TRUE(server->waitForOutput("Waiting for link")) << server->error();
    }

    /// Runs the Organiser with a command to its end.
    Finished organiser(const std::vector<std::string>& command, const std::vector<std::string>& faults = {}) {
        std::vector<std::string> arguments = {program("velmora-organiser"), "--device", organiserDevice};
        arguments.insert(arguments.end(), faults.begin(), faults.end());
        arguments.insert(arguments.end(), command.begin(), command.end());
        return run(arguments, environment());
    }

    std::filesystem::path home;
    std::filesystem::path psion;
    std::string zone = "UTC";
    std::string serverDevice;
    std::string organiserDevice;
    std::unique_ptr<Process> cable;
    std::unique_ptr<Process> server;
};

}  // namespace velmora::e2e
