// The desktop program on a real display, where the toolkit has threads of its own.
#include <gtest/gtest.h>
#include <signal.h>

#include <string>

#include "e2e/support/desktop_fixture.h"

namespace velmora::e2e {
namespace {

class DesktopDisplayTest : public DesktopFixture {
  protected:
    void SetUp() override {
        if (serverSide->windows()) {
            GTEST_SKIP() << "every test of the Windows program runs on a display";
        }
        if (!XServer::installed()) {
            GTEST_SKIP() << "Xvfb is not installed";
        }
        DesktopFixture::SetUp();
        display = std::make_unique<XServer>();
    }
    // The program goes before its display.
    void TearDown() override { server.reset(); }

    std::unique_ptr<XServer> display;
};

TEST_F(DesktopDisplayTest, ServesUntilTheOrganiserShutsItDown) {
    writeIni("[OnExit]\r\nAskUser=False\r\nAllowShutdown=True\r\n");
    startDesktop({}, display.get());
    save("NAMES", "one\r\n");
    EXPECT_EQ(contentsOf(psion / "Names.odb"), "one\r\n");
    organiser({"shutdown"});
    EXPECT_EQ(server->wait(), 0);
}

TEST_F(DesktopDisplayTest, ASignalEndsItInOrderAndGivesThePortBack) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        writeIni();
        startDesktop({}, display.get());
        save("NAMES", "one\r\n");
        const std::string before = contentsOf(ini());
        server->signal(number);
        EXPECT_EQ(server->wait(), 0) << "signal " << number;
        EXPECT_EQ(contentsOf(ini()), before);
    }
}

}  // namespace
}  // namespace velmora::e2e
