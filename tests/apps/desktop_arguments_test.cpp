#include "apps/desktop_arguments.h"

#include <gmock/gmock.h>

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
    EXPECT_EQ(readDesktopArguments({}).commandLine, "");
    EXPECT_EQ(readDesktopArguments({"-debug"}).commandLine, "-debug");
    EXPECT_EQ(readDesktopArguments({"-DeBuG"}).commandLine, "-DeBuG");
}

TEST(DesktopArguments, TheConfigurationFileMayBeNamed) {
    EXPECT_EQ(readDesktopArguments({}).config, std::nullopt);
    EXPECT_EQ(readDesktopArguments({"--config", "Other.ini"}).config, "Other.ini");
    EXPECT_EQ(readDesktopArguments({"--config=Other.ini"}).commandLine, "");
    EXPECT_THROW(readDesktopArguments({"--config"}), UsageError);
    EXPECT_THROW(readDesktopArguments({"--config", "Other.ini", "-debug"}), UsageError);
}

TEST(DesktopArguments, AProfileMayBeNamedInsteadOfTheFile) {
    EXPECT_EQ(readDesktopArguments({}).profile, std::nullopt);
    EXPECT_EQ(readDesktopArguments({"--profile", "attic"}).profile, "attic");
    EXPECT_THROW(readDesktopArguments({"--profile"}), UsageError);
    EXPECT_THROW(readDesktopArguments({"--profile", "../attic"}), UsageError);
    EXPECT_THROW(readDesktopArguments({"--profile", "attic", "--config", "Other.ini"}), UsageError);
}

TEST(DesktopArguments, TheLanguageIsOneOfThoseThatAreKnown) {
    EXPECT_EQ(readDesktopArguments({}).language, std::nullopt);
    EXPECT_EQ(readDesktopArguments({"--language", "en"}).language, "en");
    EXPECT_THROW(readDesktopArguments({"--language="}), UsageError);
    try {
        readDesktopArguments({"--language", "tlh"});
        FAIL() << "an unknown language was taken";
    } catch (const UsageError& error) {
        EXPECT_THAT(error.what(), testing::StartsWith("--language: \"tlh\" is not en"));
    }
}

TEST(DesktopArguments, AnythingElseIsWrongUsage) {
    EXPECT_THROW(readDesktopArguments({"-debug", "x"}), UsageError);
    EXPECT_THROW(readDesktopArguments({"--debug"}), UsageError);
    EXPECT_THROW(readDesktopArguments({"--frob"}), UsageError);
    EXPECT_THROW(readDesktopArguments({"Velmora.ini"}), UsageError);
}

TEST(DesktopArguments, ItsOutlineTellsOfTheDebugSwitch) {
    const ProgramOutline outline = desktopOutline();
    EXPECT_EQ(outline.name, "velmora");
    EXPECT_NE(outline.note.find("-debug"), std::string::npos);
}

}  // namespace
}  // namespace velmora
