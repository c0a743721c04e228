// The desktop program for those who hear it, or use it without a mouse and a keyboard.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "e2e/support/desktop_session_fixture.h"

namespace velmora::e2e {
namespace {

/// A screen reader listens to the session's programs.
class AssistiveTechnologyTest : public DesktopSessionFixture {
  protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DesktopSessionFixture::SetUp());
        if (IsSkipped()) {
            return;
        }
        if (serverSide->windows() ||
            !std::filesystem::exists("/usr/share/dbus-1/services/org.a11y.Bus.service")) {
            GTEST_SKIP() << "the bus of assistive technology is not installed";
        }
        reader = std::make_unique<Process>(
            std::vector<std::string>{(nativeTools() / "velmora-screen-reader").string()}, session);
        ASSERT_TRUE(reader->waitForOutput("ready")) << reader->error();
        session["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1";
    }
    void TearDown() override {
        DesktopSessionFixture::TearDown();
        reader.reset();
        bus.reset();
    }

    void expectHeard(const std::string& words) {
        EXPECT_TRUE(reader->waitForNextOutput(words)) << words << "\n" << reader->output();
    }
    void press(const std::string& control) {
        reader->say("press " + control + "\n");
        EXPECT_TRUE(reader->waitForOutput("pressed " + control + "\n")) << reader->output();
    }

    /// What the programs show now.
    std::string listed() {
        const std::size_t before = reader->output().size();
        reader->say("list\n");
        EXPECT_TRUE(reader->waitForNextOutput("\nlisted\n")) << reader->output();
        return reader->output().substr(before);
    }
    /// Looks again and again; each look waits for the programs' answers.
    void waitUntil(const std::function<bool()>& look) {
        constexpr int kLooks = 1000;
        int looks = 0;
        while (looks < kLooks && !look()) {
            ++looks;
        }
        EXPECT_LT(looks, kLooks) << reader->output();
    }

    std::unique_ptr<Process> reader;
};

TEST_F(AssistiveTechnologyTest, WindowsControlsAndDisplayHaveRolesAndNames) {
    writeIni();
    startDesktop();
    expectHeard("shows notification: Waiting for link");
    const std::string list = listed();
    for (const char* object :
         {"\n  frame: Velmora", "\n   label: Organiser display\n", "\n   push button: Stop\n",
          "\n   push button: Setup\n", "\n   push button: Transfers\n"}) {
        EXPECT_NE(list.find(object), std::string::npos) << object << list;
    }
}

TEST_F(AssistiveTechnologyTest, ChoicesMadeByActionsCount) {
    writeIni("[OnExit]\r\nAskUser=False\r\n");
    startDesktop();
    expectHeard("shows notification: Waiting for link");
    press("Stop");
    expectHeard("shows notification: Server Offline. Click Start!");
    press("Setup");
    expectHeard("shows dialog: Velmora Setup");
    waitUntil([this] { return listed().find("label: Testing the ports...") == std::string::npos; });
    press("Autostart");
    press("2400");
    press("OK");
    reader->say("press Shut down\n");
    EXPECT_EQ(server->wait(), 0);
    const std::string saved = contentsOf(ini());
    EXPECT_NE(saved.find("AutoStart=False"), std::string::npos) << saved;
    EXPECT_NE(saved.find("Baud=2400"), std::string::npos) << saved;
}

TEST_F(AssistiveTechnologyTest, EveryFinishedFileIsSpoken) {
    writeIni();
    startDesktop();
    save("NAMES", "one\ttwo\r\n");
    expectHeard("shows notification: Save of Names.odb: complete");
    const Finished missing = organiser({"load", "GONE"});
    EXPECT_NE(missing.status, 0);
    expectHeard("shows notification: Load of Gone.odb: refused: no such file (189)");
}

TEST_F(AssistiveTechnologyTest, AWarningIsSpoken) {
    writeIni();
    startDesktop();
    expectHeard("shows notification: Waiting for link");
    cable.reset();
    expectHeard("shows notification: Error ");
    expectHeard("is the adapter plugged in, and is it the right port?");
    serverSide->stop(*server);
    server->wait();
}

}  // namespace
}  // namespace velmora::e2e
