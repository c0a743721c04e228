// What every program answers to its command line alone.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "e2e/support/programs_under_test.h"
#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

/// Needs neither server nor cable.
class CommandLinesTest : public ServerFixture {
  protected:
    void SetUp() override {
        if (serverSide->windows()) {
            // Its windows have no console to speak on.
            programs.erase(programs.begin());
        }
    }

    /// Runs a program without a display.
    Finished runWithoutDisplay(const std::string& program, const std::vector<std::string>& arguments) const {
        std::map<std::string, std::string> variables = serverSide->environment(home, zone);
        variables["DISPLAY"] = "";
        return run(serverSide->command(program, arguments), variables);
    }

    std::vector<std::string> programs = {"velmora", "velmorad", "velmora-organiser", "velmora-files",
                                         "velmora-doctor"};
};

TEST_F(CommandLinesTest, HelpAndVersionAreAnsweredWithoutADisplay) {
    for (const std::string& program : programs) {
        const Finished help = runWithoutDisplay(program, {"--help"});
        EXPECT_EQ(help.status, 0) << program << help.error;
        EXPECT_NE(help.output.find("Usage: " + program), std::string::npos) << help.output;
        const Finished version = runWithoutDisplay(program, {"--version"});
        EXPECT_EQ(version.status, 0) << program << version.error;
        EXPECT_EQ(version.output.rfind(program + " ", 0), 0U) << version.output;
    }
}

TEST_F(CommandLinesTest, AMistypedOptionIsOneLineAndStatusTwo) {
    for (const std::string& program : programs) {
        if (program == "velmora") {
            continue;  // only its toolkit can tell, and that needs a display
        }
        const Finished done = runWithoutDisplay(program, {"--versoin"});
        EXPECT_EQ(done.status, 2) << program;
        EXPECT_EQ(done.output, "");
        EXPECT_NE(done.error.find(program + ": there is no option --versoin; did you mean --version?"),
                  std::string::npos)
            << done.error;
    }
}

TEST_F(CommandLinesTest, TheDesktopLeavesTheToolkitItsOwnOptions) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "a program with windows has no console there";
    }
    const Finished done = runWithoutDisplay("velmora", {"-platform", "offscreen", "--frobnicate"});
    EXPECT_EQ(done.status, 2);
    EXPECT_NE(done.error.find("velmora: there is no option --frobnicate\n"), std::string::npos) << done.error;
}

TEST_F(CommandLinesTest, AHelpThatCannotBeWrittenIsAFailure) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "needs a device that is always full";
    }
    for (const std::string& program : programs) {
        const std::string command = serverSide->command(program, {"--help"}).front();
        EXPECT_EQ(run({"/bin/sh", "-c", command + " --help > /dev/full"}).status, 1) << program;
    }
}

// Each of them ended with 0, and what had been asked for was nowhere.
TEST_F(CommandLinesTest, ContentsThatCannotBeWrittenAreAFailure) {
    if (organiserSide->windows()) {
        GTEST_SKIP() << "needs a device that is always full";
    }
    writeFile(home / "a.odb", "one\ttwo\r\n");
    for (const std::string& arguments :
         {"show " + (home / "a.odb").string(), "data " + (home / "a.odb").string() + " - --to csv"}) {
        const std::string command = organiserSide->command("velmora-files", {}).front();
        const Finished done = run({"/bin/sh", "-c", command + " " + arguments + " > /dev/full"});
        EXPECT_EQ(done.status, 1) << arguments;
        EXPECT_NE(done.error.find("velmora-files: "), std::string::npos) << done.error;
    }
}

}  // namespace
}  // namespace velmora::e2e
