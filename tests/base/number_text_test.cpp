#include "base/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/run_time_error.h"

namespace velmora {
namespace {

TEST(NumericValue, ReadsTheLongestNumericPrefix) {
    EXPECT_EQ(numericValue("9600,N,8,1"), 9600);
    EXPECT_EQ(numericValue("12abc"), 12);
    EXPECT_EQ(numericValue("abc"), 0);
    EXPECT_EQ(numericValue(""), 0);
    EXPECT_EQ(numericValue("."), 0);
    EXPECT_EQ(numericValue("-"), 0);
    EXPECT_EQ(numericValue(".5"), 0.5);
    EXPECT_EQ(numericValue("5."), 5);
    EXPECT_EQ(numericValue("-10"), -10);
    EXPECT_EQ(numericValue("+7"), 7);
}

TEST(NumericValue, IgnoresBlanksAndAllowsAnExponent) {
    EXPECT_EQ(numericValue("  1 2 3"), 123);
    EXPECT_EQ(numericValue("1.5E3"), 1500);
    EXPECT_EQ(numericValue("1.5e+3x"), 1500);
    EXPECT_EQ(numericValue("25D-1"), 2.5);
    EXPECT_EQ(numericValue("3E"), 3) << "an exponent without digits does not count";
    EXPECT_EQ(numericValue("3E+"), 3);
    EXPECT_EQ(numericValue("1,234"), 1) << "a comma is no part of a number";
}

TEST(NumericValue, KnowsNoOtherNotation) {
    EXPECT_EQ(numericValue("0x10"), 0);
    EXPECT_EQ(numericValue("nan"), 0);
    EXPECT_EQ(numericValue("inf"), 0);
}

TEST(NumericValue, IsInfiniteBeyondTheRangeAndZeroBelowIt) {
    EXPECT_EQ(numericValue("1E999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(numericValue("-1E999"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(numericValue("1E-999"), 0);
    EXPECT_EQ(numericValue("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(numericValue("1" + std::string(400, '0')), std::numeric_limits<double>::infinity());
    EXPECT_EQ(numericValue("1E99999999999999999999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(numericValue("1E-99999999999999999999"), 0);
}

TEST(PlainText, IsTheShortestForm) {
    EXPECT_EQ(plainText(0), "0");
    EXPECT_EQ(plainText(-0.0), "0");
    EXPECT_EQ(plainText(1), "1");
    EXPECT_EQ(plainText(-1.5), "-1.5");
    EXPECT_EQ(plainText(0.5), "0.5");
    EXPECT_EQ(plainText(0.1 + 0.2), "0.3") << "15 digits";
    EXPECT_EQ(plainText(123456789), "123456789");
    EXPECT_EQ(plainText(1e14), "100000000000000");
    EXPECT_EQ(plainText(1e20), "1E+20");
    EXPECT_EQ(plainText(-1.25e-7), "-1.25E-07");
    EXPECT_EQ(plainText(0.0001), "0.0001");
    EXPECT_EQ(plainText(1e300), "1E+300");
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
