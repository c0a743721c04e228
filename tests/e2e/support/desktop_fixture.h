// The desktop program on the cable, as a user has it.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "e2e/support/server_fixture.h"
#include "e2e/support/x_server.h"

namespace velmora::e2e {

/// Its configuration file names the cable's port and starts the server with the program, on a display of the
/// test's own. The Windows program has the display of whoever runs the tests.
class DesktopFixture : public ServerFixture {
  protected:
    void SetUp() override {
        if (!serverSide->windows() && !XServer::installed()) {
            GTEST_SKIP() << "Xvfb is not installed";
        }
        ServerFixture::SetUp();
        if (serverSide->windows()) {
            port = serverPort.substr(std::string("COM").size());
        } else {
            ports = "[Ports]\r\nCOM" + port + "=" + serverDevice + "\r\n";
            display = std::make_unique<XServer>();
        }
    }
    /// The program goes before its display.
    void TearDown() override {
        if (!serverSide->windows()) {
            ServerFixture::TearDown();
        }
        server.reset();
    }

    void writeIni(const std::string& more = {}) {
        writeFile(ini(), "[Settings]\r\nPort=" + port +
                             "\r\nBaud=9600\r\nAutoStart=True\r\nDataFileType=0\r\nDownloadPath=" +
                             serverPath(psion) + "\r\n" + ports + more);
    }
    std::filesystem::path ini() const { return serverSide->configuration(home); }

    void startDesktop(const std::vector<std::string>& options = {}) { server = desktopProcess(options); }
    /// The program, started beside whatever runs.
    std::unique_ptr<Process> desktopProcess(const std::vector<std::string>& options) const {
        return std::make_unique<Process>(serverSide->command("velmora", options), desktopVariables());
    }
    std::map<std::string, std::string> desktopVariables() const {
        std::map<std::string, std::string> variables = serverSide->environment(home, zone);
        variables.insert(session.begin(), session.end());
        if (display) {
            variables["QT_QPA_PLATFORM"] = "xcb";
            variables["DISPLAY"] = display->name();
        }
        return variables;
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

    std::map<std::string, std::string> session;  // more variables, of a login session
    std::unique_ptr<XServer> display;
    std::string port = "40";  // as the configuration names it
    std::string ports;        // the section that says which device it is
};

}  // namespace velmora::e2e
