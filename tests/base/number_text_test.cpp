#include "base/number_text.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <clocale>
#include <cmath>
#include <limits>

#include "base/run_time_error.h"
#include "support/number_cases.h"

namespace velmora {
namespace {

TEST(NumericValue, IsThatOfTheTable) {
    for (const test::TextNumber& row : test::textNumbers()) {
        EXPECT_EQ(numericValue(row.text), row.value) << row.text;
    }
}

TEST(NumericValue, KeepsTheSignOfZeroOutOfSight) {
    EXPECT_EQ(plainText(numericValue("-0")), "0");
    EXPECT_EQ(plainText(numericValue("-1E-999")), "0");
}

TEST(PlainText, IsThatOfTheTable) {
    for (const test::NumberText& row : test::numberTexts()) {
        EXPECT_EQ(plainText(row.value), row.plain);
    }
}

TEST(PlainText, ReadsBackToTheSameText) {
    for (const test::NumberText& row : test::numberTexts()) {
        const double back = numericValue(row.plain);
        if (std::isfinite(back)) {  // the largest number has a text that is larger
            EXPECT_EQ(plainText(back), row.plain);
        }
    }
}

/// Runs the whole table both ways.
void expectTheTableHolds(const char* where) {
    for (const test::NumberText& row : test::numberTexts()) {
        EXPECT_EQ(plainText(row.value), row.plain) << where;
    }
    for (const test::TextNumber& row : test::textNumbers()) {
        EXPECT_EQ(numericValue(row.text), row.value) << row.text << " " << where;
    }
}

TEST(NumberTexts, AreAlikeWhateverLocaleTheProcessIsIn) {
    // Some libraries call setlocale for the whole process; these locales write a comma. Which of the names a
    // system knows differs.
    for (const char* name : {"", "de_DE.UTF-8", "German_Germany.1252", "de-DE"}) {
        if (std::setlocale(LC_ALL, name) != nullptr) {
            expectTheTableHolds(name);
        }
    }
    std::setlocale(LC_ALL, "C");
    expectTheTableHolds("C");
}

TEST(PlainText, IsAlikeWhateverRoundingModeTheProcessIsIn) {
    for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        std::fesetround(mode);
        const std::string text = plainText(2.0 / 3);
        const std::string tie = plainText(100'000'000'000'001.5);
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(text, "0.666666666666667");
        EXPECT_EQ(tie, "100000000000002");
    }
}

TEST(RoundToWhole, HalvesGoToTheEvenNumber) {
    EXPECT_EQ(toInt16(0.5), 0);
    EXPECT_EQ(toInt16(1.5), 2);
    EXPECT_EQ(toInt16(2.5), 2);
    EXPECT_EQ(toInt16(-0.5), 0);
    EXPECT_EQ(toInt16(-1.5), -2);
    EXPECT_EQ(toInt16(2.4), 2);
    EXPECT_EQ(toInt32(100'000.6), 100'001);
}

TEST(RoundToWhole, OutOfRangeIsAnOverflow) {
    EXPECT_EQ(toInt16(32'767.4), 32'767);
    EXPECT_THROW(toInt16(32'767.5), RunTimeError);
    EXPECT_THROW(toInt16(-32'769), RunTimeError);
    EXPECT_THROW(toInt32(3e9), RunTimeError);
    EXPECT_THROW(toInt32(std::nan("")), RunTimeError);
    EXPECT_THROW(toInt32(std::numeric_limits<double>::infinity()), RunTimeError);
}

TEST(GroupedText, SeparatesThousands) {
    EXPECT_EQ(groupedText(0), "0");
    EXPECT_EQ(groupedText(999), "999");
    EXPECT_EQ(groupedText(1000), "1,000");
    EXPECT_EQ(groupedText(1234567), "1,234,567");
    EXPECT_EQ(groupedText(-1000), "-1,000");
    EXPECT_EQ(groupedText(-100), "-100");
}

}  // namespace
}  // namespace velmora
