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
        if (serverSide->windows()) {
            port = serverPort.substr(std::string("COM").size());
        } else {
            ports = "[Ports]\r\nCOM" + port + "=" + serverDevice + "\r\n";
        }
    }

    void writeIni(const std::string& more = {}) {
        writeFile(ini(), "[Settings]\r\nPort=" + port +
                             "\r\nBaud=9600\r\nAutoStart=True\r\nDataFileType=0\r\nDownloadPath=" +
                             serverPath(psion) + "\r\n" + ports + more);
    }
    std::filesystem::path ini() const { return serverSide->configuration(home); }

    /// Starts the program without a display, or under `prefix`, such as a display of its own. The Windows
    /// program has the display of whoever runs the tests.
    void startDesktop(const std::vector<std::string>& options = {},
                      const std::vector<std::string>& prefix = {}) {
        std::map<std::string, std::string> variables = serverSide->environment(home, zone);
        if (!serverSide->windows()) {
            variables["QT_QPA_PLATFORM"] = prefix.empty() ? "offscreen" : "xcb";
        }
        std::vector<std::string> arguments = prefix;
        const std::vector<std::string> command = serverSide->command("velmora", options);
        arguments.insert(arguments.end(), command.begin(), command.end());
        server = std::make_unique<Process>(arguments, variables);
    }
    /// Saves a file through the Organiser, which keeps asking for the link until the server is there.
    void save(const std::string& name, const std::string& contents) {
        writeFile(home / "local", contents);
        Finished done;
        for (int attempt = 0; attempt < 10; ++attempt) {
            done = organiser({"save", organiserPath(home / "local"), "--as", name});
            if (done.status == 0) {
                return;
            }
        }
        FAIL() << done.status << done.output << done.error << server->error();
    }

    /// The window's place goes to the user's settings, which are the registry on Windows.
    void expectStoredWindowPosition() const {
        if (!serverSide->windows()) {
            const std::string settings = contentsOf(home / "config" / "Quillbrook" / "Velmora.conf");
            EXPECT_NE(settings.find("XPos="), std::string::npos) << settings;
            return;
        }
        const Finished query =
            run({"wine", "reg", "query", R"(HKCU\Software\Quillbrook\Velmora)", "/v", "XPos"},
                serverSide->environment(home, zone));
        EXPECT_EQ(query.status, 0) << query.error;
        EXPECT_NE(query.output.find("XPos"), std::string::npos) << query.output;
    }

    std::string port = "40";  // as the configuration names it
    std::string ports;        // the section that says which device it is
};

TEST_F(DesktopTest, SavesAndLoadsAFileAndEndsOnRequestWithItsSettingsSaved) {
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    startDesktop();
    save("NAMES", "one\ttwo\r\n");
    EXPECT_EQ(contentsOf(psion / "Names.odb"), "one\ttwo\r\n");
    const Finished loaded = organiser({"load", "NAMES", "-o", organiserPath(home / "back")});
    EXPECT_EQ(loaded.status, 0) << loaded.error;
    EXPECT_EQ(contentsOf(home / "back"), "one\ttwo\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
    const std::string saved = contentsOf(ini());
    EXPECT_NE(saved.find("Port=" + port), std::string::npos);
    EXPECT_NE(saved.find("Baud=9600"), std::string::npos);
    EXPECT_NE(saved.find("AutoStart=True"), std::string::npos);
    expectStoredWindowPosition();
}

TEST_F(DesktopTest, SignalEndsItAtOnceAndChangesNoSetting) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "a program with windows gets no signals there";
    }
    writeIni();
    startDesktop();
    save("NAMES", "one\r\n");
    const std::string before = contentsOf(ini());
    server->signal(SIGTERM);
    EXPECT_EQ(server->wait(), 0);
    EXPECT_EQ(contentsOf(ini()), before);
}

TEST_F(DesktopTest, DebugSwitchInAnyCaseStartsToo) {
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    startDesktop({"-DeBuG"});
    save("NAMES", "one\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(DesktopTest, ServesOnADisplay) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "every test of the Windows program runs on a display";
    }
    if (::access("/usr/bin/xvfb-run", X_OK) != 0) {
        GTEST_SKIP() << "xvfb-run is not installed";
    }
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    startDesktop({}, {"/usr/bin/xvfb-run", "-a"});
    save("NAMES", "one\r\n");
    EXPECT_EQ(contentsOf(psion / "Names.odb"), "one\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
}

}  // namespace
}  // namespace velmora::e2e
