#include "files/arguments.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using Words = std::vector<std::string>;

TEST(Arguments, TellsWordsFromOptions) {
    const Arguments parsed({"a", "--to", "csv", "-", "-o", "x", "--from=wks"}, {"--to", "--from", "-o"});
    EXPECT_EQ(parsed.words(), (Words{"a", "-"}));
    EXPECT_EQ(parsed.value("--to"), "csv");
    EXPECT_EQ(parsed.value("--from"), "wks");
    EXPECT_EQ(parsed.value("-o"), "x");
    EXPECT_FALSE(parsed.has("--other"));
    EXPECT_EQ(parsed.value("--other"), "");
}

TEST(Arguments, AValueMayBeEmptyOrLookLikeAnOption) {
    const Arguments parsed({"--to", "", "--from", "-x", "--at="}, {"--to", "--from", "--at"});
    EXPECT_TRUE(parsed.has("--to"));
    EXPECT_EQ(parsed.value("--from"), "-x");
    EXPECT_TRUE(parsed.has("--at"));
    EXPECT_TRUE(parsed.words().empty());
}

TEST(Arguments, EverythingBehindTwoDashesIsAWord) {
    EXPECT_EQ(Arguments({"--", "--to", "-x"}, {"--to"}).words(), (Words{"--to", "-x"}));
}

TEST(Arguments, RefusesWhatItDoesNotKnow) {
    EXPECT_THROW(Arguments({"--up"}, {"--to"}), UsageError);
    EXPECT_THROW(Arguments({"--to"}, {"--to"}), UsageError);
    EXPECT_THROW(Arguments({"--to", "a", "--to", "b"}, {"--to"}), UsageError);
}

TEST(Arguments, NamesTheWordThatIsMissingOrTooMany) {
    const Arguments parsed({"a", "b"}, {});
    EXPECT_NO_THROW(parsed.requireWords({"IN", "OUT"}));
    try {
        parsed.requireWords({"IN", "OUT", "THIRD"});
        FAIL();
    } catch (const UsageError& error) {
        EXPECT_STREQ(error.what(), "THIRD is missing");
    }
    EXPECT_THROW(parsed.requireWords({"IN"}), UsageError);
}

}  // namespace
}  // namespace velmora
