#include "apps/desktop_arguments.h"

#include <gtest/gtest.h>

#include "arguments/syntax.h"
#include "arguments/usage_error.h"

namespace velmora {
namespace {

TEST(DesktopArguments, HelpAndVersionAreAnsweredWhateverElseStandsThere) {
    EXPECT_THROW(answerWithoutDisplay({"--help"}), RequestedText);
    EXPECT_THROW(answerWithoutDisplay({"-platform", "offscreen", "--version"}), RequestedText);
    EXPECT_NO_THROW(answerWithoutDisplay({}));
    EXPECT_NO_THROW(answerWithoutDisplay({"-debug"}));
    EXPECT_NO_THROW(answerWithoutDisplay({"-style", "fusion", "--frob", "x"}));
}

TEST(DesktopArguments, TheDebugSwitchIsTheWholeLineInAnyCase) {
    EXPECT_EQ(desktopCommandLine({}), "");
    EXPECT_EQ(desktopCommandLine({"-debug"}), "-debug");
    EXPECT_EQ(desktopCommandLine({"-DeBuG"}), "-DeBuG");
}

TEST(DesktopArguments, AnythingElseIsWrongUsage) {
    EXPECT_THROW(desktopCommandLine({"-debug", "x"}), UsageError);
    EXPECT_THROW(desktopCommandLine({"--debug"}), UsageError);
    EXPECT_THROW(desktopCommandLine({"--frob"}), UsageError);
    EXPECT_THROW(desktopCommandLine({"Velmora.ini"}), UsageError);
}

TEST(DesktopArguments, ItsOutlineTellsOfTheDebugSwitch) {
    const ProgramOutline outline = desktopOutline();
    EXPECT_EQ(outline.name, "velmora");
    EXPECT_NE(outline.note.find("-debug"), std::string::npos);
}

}  // namespace
}  // namespace velmora
