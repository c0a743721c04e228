// The desktop program on the cable, as a user has it: started by AutoStart from its configuration file.
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <string>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

class DesktopTest : public ServerFixture {
  protected:
    void SetUp() override {
        ServerFixture::SetUp();
        std::filesystem::create_directories(home / "config");
        std::filesystem::create_directories(home / "tmp");
        port = home / "port";
        plug(serverDevice);
    }

    /// Makes the configured device stand for this terminal; an adapter that comes back may have another one.
    void plug(const std::string& device) {
        std::filesystem::remove(port);
        std::filesystem::create_symlink(device, port);
    }

    void writeIni(const std::string& more = {}) {
        writeFile(ini(),
                  "[Settings]\r\nPort=40\r\nBaud=9600\r\nAutoStart=True\r\nDataFileType=0\r\nDownloadPath=" +
                      psion.string() + "\r\n[Ports]\r\nCOM40=" + port.string() + "\r\n" + more);
    }
    std::filesystem::path ini() const { return home / "config" / "Velmora.ini"; }

    /// Starts the program; under `prefix`, such as a display of its own.
    void startDesktop(const std::vector<std::string>& prefix = {},
                      const std::string& platform = "offscreen") {
        std::map<std::string, std::string> variables = environment();
        variables["QT_QPA_PLATFORM"] = platform;
        std::vector<std::string> arguments = prefix;
        arguments.push_back(program("velmora"));
        server = std::make_unique<Process>(arguments, variables);
    }
    /// Saves a file through the Organiser, which keeps asking for the link until the server is there.
    void save(const std::string& name, const std::string& contents) {
        writeFile(home / "local", contents);
        Finished done;
        for (int attempt = 0; attempt < 10; ++attempt) {
            done = organiser({"save", (home / "local").string(), "--as", name});
            if (done.status == 0) {
                return;
            }
        }
        FAIL() << done.status << done.output << done.error << server->error();
    }

    std::filesystem::path port;  // the device as the configuration names it
};

TEST_F(DesktopTest, SavesAndLoadsAFileAndEndsOnRequestWithItsSettingsSaved) {
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    startDesktop();
    save("NAMES", "one\ttwo\r\n");
    EXPECT_EQ(contentsOf(psion / "Names.odb"), "one\ttwo\r\n");
    const Finished loaded = organiser({"load", "NAMES", "-o", (home / "back").string()});
    EXPECT_EQ(loaded.status, 0) << loaded.error;
    EXPECT_EQ(contentsOf(home / "back"), "one\ttwo\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
    const std::string saved = contentsOf(ini());
    EXPECT_NE(saved.find("Port=40"), std::string::npos);
    EXPECT_NE(saved.find("Baud=9600"), std::string::npos);
    EXPECT_NE(saved.find("AutoStart=True"), std::string::npos);
    // The window's place goes to the toolkit's settings.
    EXPECT_NE(contentsOf(home / "config" / "Quillbrook" / "Velmora.conf").find("XPos="), std::string::npos);
}

TEST_F(DesktopTest, SignalEndsItAtOnceAndChangesNoSetting) {
    writeIni();
    startDesktop();
    save("NAMES", "one\r\n");
    const std::string before = contentsOf(ini());
    server->signal(SIGTERM);
    EXPECT_EQ(server->wait(), 0);
    EXPECT_EQ(contentsOf(ini()), before);
}

TEST_F(DesktopTest, DebugSwitchInAnyCaseStartsToo) {
    writeIni();
    std::map<std::string, std::string> variables = environment();
    variables["QT_QPA_PLATFORM"] = "offscreen";
    server = std::make_unique<Process>(std::vector<std::string>{program("velmora"), "-DeBuG"}, variables);
    save("NAMES", "one\r\n");
    server->signal(SIGTERM);
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(DesktopTest, ServesOnADisplay) {
    if (::access("/usr/bin/xvfb-run", X_OK) != 0) {
        GTEST_SKIP() << "xvfb-run is not installed";
    }
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    startDesktop({"/usr/bin/xvfb-run", "-a"}, "xcb");
    save("NAMES", "one\r\n");
    EXPECT_EQ(contentsOf(psion / "Names.odb"), "one\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
}

}  // namespace
}  // namespace velmora::e2e
