// What Orca, the screen reader of the Linux desktops, says of the desktop program.
#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>

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
        // Notes kept in a file would be there when Orca has ended; these it prints at once.
        const std::filesystem::path settings = home / "orca" / "orca";
        std::filesystem::create_directories(settings);
        writeFile(settings / "orca-customizations.py",
                  "import orca.debug\norca.debug.debugLevel = orca.debug.LEVEL_INFO\n");
        std::map<std::string, std::string> variables = session;
        variables["HOME"] = home.string();
        variables["XDG_DATA_HOME"] = (home / "orca").string();
        variables["LC_ALL"] = "C.UTF-8";
        reader = std::make_unique<Process>(std::vector<std::string>{kOrca}, variables);
        ASSERT_TRUE(reader->waitForError("Screen reader on.")) << reader->error();
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
        EXPECT_TRUE(reader->waitForError(spoken(words))) << words << "\n" << reader->error();
    }
    /// How often it began to say so, when all is said.
    std::size_t timesSpoken(const std::string& words) {
        serverSide->stop(*server);
        server->wait();
        reader->signal(SIGTERM);
        reader->wait();
        const std::string& said = reader->error();
        std::size_t times = 0;
        for (std::size_t at = said.find(spoken(words)); at != std::string::npos;
             at = said.find(spoken(words), at + 1)) {
            ++times;
        }
        return times;
    }

    std::unique_ptr<Process> reader;
};

TEST_F(OrcaTest, StatesAndFinishedFilesAreSpoken) {
    startDesktop();
    expectSpoken("Waiting for link.");
    save("NAMES", "one\ttwo\r\n");
    expectSpoken("Save of Names.odb: complete.");
    const Finished missing = organiser({"load", "GONE"});
    EXPECT_NE(missing.status, 0);
    expectSpoken("Load of Gone.odb: refused: no such file (189)");
    EXPECT_EQ(timesSpoken("Save of Names.odb"), 1U);
}

TEST_F(OrcaTest, AWarningIsSpokenOnceWithItsAdvice) {
    startDesktop();
    expectSpoken("Waiting for link.");
    cable.reset();
    expectSpoken("Error ");
    EXPECT_TRUE(reader->waitForError("is the adapter plugged in, and is it the right port?"))
        << reader->error();
    EXPECT_EQ(timesSpoken("Error "), 1U);
}

TEST_F(OrcaTest, FinishedFilesAreSpokenInTheLanguageOfTheWindows) {
    startDesktop({"--language", "de"});
    save("NAMES", "one\ttwo\r\n");
    expectSpoken("Speichern von Names.odb: vollständig.");
}

}  // namespace
}  // namespace velmora::e2e
