#include "base/like_pattern.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

struct Row {
    const char* name;
    const char* text;
    const char* pattern;
    bool matches;
};

class LikePattern : public testing::TestWithParam<Row> {};

TEST_P(LikePattern, Row) {
    const Row& row = GetParam();
    EXPECT_EQ(likeMatches(row.text, row.pattern), row.matches) << row.text << " like " << row.pattern;
}

INSTANTIATE_TEST_SUITE_P(
    Table, LikePattern,
    testing::Values(Row{"Equal", "MEMO.ODB", "MEMO.ODB", true}, Row{"CaseCounts", "memo", "MEMO", false},
                    Row{"StarTakesAll", "MEMO.ODB", "*", true}, Row{"StarTakesNothing", "", "*", true},
                    Row{"StarDotStarNeedsADot", "MEMO", "*.*", false},
                    Row{"StarInside", "MEMO.ODB", "M*.O*B", true},
                    Row{"StarGoesBack", "ABABAC", "*ABAC", true}, Row{"TwoStars", "AXBXC", "A*B*C", true},
                    Row{"TwoStarsFail", "AXBXD", "A*B*C", false}, Row{"Question", "AB1", "A?1", true},
                    Row{"QuestionNeedsOne", "A1", "A?1", false}, Row{"Digit", "A7", "A#", true},
                    Row{"DigitFails", "AX", "A#", false}, Row{"List", "B", "[ABC]", true},
                    Row{"ListFails", "D", "[ABC]", false}, Row{"Range", "Q", "[A-Z]", true},
                    Row{"RangeAndSingle", "7", "[A-C7]", true}, Row{"Negated", "D", "[!ABC]", true},
                    Row{"NegatedFails", "A", "[!ABC]", false}, Row{"NegatedNeedsAByte", "", "[!A]", false},
                    Row{"ListHoldsWildcard", "*", "[*]", true}, Row{"HyphenAtEnd", "-", "[A-]", true},
                    Row{"ExclamationAlone", "!", "[!]", true}, Row{"EmptyListIsNothing", "AB", "A[]B", true},
                    Row{"UnclosedIsItself", "A[B", "A[B", true}, Row{"TextLeft", "AB", "A", false},
                    Row{"PatternLeft", "A", "AB", false}),
    [](const testing::TestParamInfo<Row>& row) { return std::string(row.param.name); });

TEST(LikePatternTime, ManyStarsOnALongTextStaySmall) {
    const std::string text(20'000, 'a');
    std::string pattern;
    for (int i = 0; i < 200; ++i) {
        pattern += "*a";
    }
    EXPECT_FALSE(likeMatches(text, pattern + "b"));
    EXPECT_TRUE(likeMatches(text, pattern));
}

}  // namespace
}  // namespace velmora
