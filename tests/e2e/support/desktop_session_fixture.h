// The desktop program in a login session.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "e2e/support/desktop_fixture.h"

namespace velmora::e2e {

/// A session that programs can find each other in: a bus, and a folder for their sockets. Windows has its
/// own.
class DesktopSessionFixture : public DesktopFixture {
  protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DesktopFixture::SetUp());
        if (serverSide->windows() || IsSkipped()) {
            return;
        }
        const std::string address = "unix:path=" + (home / "session-bus").string();
        const std::filesystem::path sockets = home / "run";
        std::filesystem::create_directory(sockets);
        session = {{"DBUS_SESSION_BUS_ADDRESS", address},
                   {"XDG_RUNTIME_DIR", sockets.string()},
                   {"DISPLAY", display->name()}};
        bus = std::make_unique<Process>(std::vector<std::string>{"dbus-daemon", "--session", "--nofork",
                                                                 "--print-address", "--address=" + address},
                                        session);
        ASSERT_TRUE(bus->waitForOutput(address)) << bus->error();
    }

    std::unique_ptr<Process> bus;
};

}  // namespace velmora::e2e
