// What Orca, the screen reader of the Linux desktops, says of the desktop program.
#include <gtest/gtest.h>
#include <signal.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "e2e/support/desktop_session_fixture.h"

namespace velmora::e2e {
namespace {

constexpr const char* kOrca = "/usr/bin/orca";

/// Orca listens to the session's programs. It needs no voice: it notes what it would say.
class OrcaTest : public DesktopSessionFixture {
  protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DesktopSessionFixture::SetUp());
        if (IsSkipped()) {
            return;
        }
        if (serverSide->windows() || !std::filesystem::exists(kOrca)) {
            GTEST_SKIP() << "Orca is not installed";
        }
        if (run({"sh", "-c", "pgrep -x -u $(id -u) orca"}).status == 0) {
            GTEST_SKIP() << "another Orca of this user is running, which lets no second one start";
        }
        // Notes kept in a file would be there when Orca has ended; these it prints at once.
        const std::filesystem::path settings = home / "orca" / "orca";
        std::filesystem::create_directories(settings);
        writeFile(settings / "orca-customizations.py",
                  "import orca.debug\norca.debug.debugLevel = orca.debug.LEVEL_INFO\n");
        std::map<std::string, std::string> variables = session;
        variables["HOME"] = home.string();
        variables["XDG_DATA_HOME"] = (home / "orca").string();
        variables["LC_ALL"] = "C.UTF-8";
        reader = std::make_unique<Process>(
            std::vector<std::string>{"sh", "-c", std::string("exec ") + kOrca + " 2>&1"}, variables);
        ASSERT_TRUE(reader->waitForNextOutput("Screen reader on.")) << reader->output();
        session["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1";
        writeIni();
    }
    /// Orca goes before the bus that it listens to.
    void TearDown() override {
        DesktopSessionFixture::TearDown();
        reader.reset();
        bus.reset();
    }

    static std::string spoken(const std::string& words) { return "SPEECH OUTPUT: 'notification " + words; }
    void expectSpoken(const std::string& words) {
        EXPECT_TRUE(reader->waitForNextOutput(spoken(words))) << words << "\n" << reader->output();
    }
    void endDesktop() {
        serverSide->stop(*server);
        server->wait();
    }
    void endOrca() {
        reader->signal(SIGTERM);
        reader->wait();
    }
    /// How often it began to say so.
    std::size_t timesSpoken(const std::string& words) const {
        const std::string& said = reader->output();
        std::size_t times = 0;
        for (std::size_t at = said.find(spoken(words)); at != std::string::npos;
             at = said.find(spoken(words), at + 1)) {
            ++times;
        }
        return times;
    }

    std::unique_ptr<Process> reader;
};

// One test for all, since one user has one Orca at a time, and tests run side by side.
TEST_F(OrcaTest, StatesFilesAndWarningsAreSpokenOnceAndInTheLanguageOfTheWindows) {
    startDesktop({"--language", "de"});
    save("NAMES", "one\ttwo\r\n");
    expectSpoken("Speichern von Names.odb: vollständig.");
    endDesktop();

    startDesktop();
    expectSpoken("Waiting for link.");
    save("SUMS", "one\ttwo\r\n");
    expectSpoken("Save of Sums.odb: complete.");
    const Finished missing = organiser({"load", "GONE"});
    EXPECT_NE(missing.status, 0);
    expectSpoken("Load of Gone.odb: refused: no such file (189)");
    cable.reset();
    expectSpoken("Error ");
    EXPECT_TRUE(reader->waitForNextOutput("is the adapter plugged in, and is it the right port?"))
        << reader->output();
    endDesktop();
    endOrca();
    EXPECT_EQ(timesSpoken("Save of Sums.odb"), 1U);
    EXPECT_EQ(timesSpoken("Error "), 1U);
}

}  // namespace
}  // namespace velmora::e2e
