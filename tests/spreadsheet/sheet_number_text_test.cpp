#include "spreadsheet/sheet_number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "base/number_text.h"

namespace velmora {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(ExponentText, FollowsThePattern) {
    const struct {
        double value;
        const char* text;
    } rows[] = {
        {2, "2.0E0"},
        {1234.5, "1.2345E3"},
        {0.00001, "1.0E-5"},
        {-1.5, "-1.5E0"},
        {10, "1.0E1"},
        {0.1, "1.0E-1"},
        {1.0 / 3, "3.33333333333E-1"},
        {2.0 / 3, "6.66666666667E-1"},
        {123456789012345.0, "1.23456789012E14"},
        {9.999999999996, "1.0E1"},
        {9.99999999999, "9.99999999999E0"},
        {1e300, "1.0E300"},
        {5e-324, "4.94065645841E-324"},
        {1.7976931348623157e308, "1.79769313486E308"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(exponentText(row.value), row.text);
    }
}

TEST(ExponentText, ZeroHasNoSign) {
    EXPECT_EQ(exponentText(0.0), "0.0E0");
    EXPECT_EQ(exponentText(-0.0), "0.0E0");
}

TEST(ExponentText, WhatIsNoNumberIsErr) {
    EXPECT_EQ(exponentText(kInfinity), "ERR");
    EXPECT_EQ(exponentText(-kInfinity), "ERR");
    EXPECT_EQ(exponentText(std::nan("")), "ERR");
}

TEST(ExponentText, ReadsBackToTwelveDigits) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-290, 290);
    for (int i = 0; i < 5000; ++i) {
        const double value = mantissa(random) * std::pow(10, exponent(random));
        const double back = numericValue(exponentText(value));
        ASSERT_LE(std::abs(back - value), std::abs(value) * 5.1e-12) << value;
    }
}

TEST(PlainCellText, IsThePlainForm) {
    EXPECT_EQ(plainCellText(0.5), "0.5");
    EXPECT_EQ(plainCellText(1), "1");
    EXPECT_EQ(plainCellText(1e20), "1E+20");
    EXPECT_EQ(plainCellText(kInfinity), "ERR");
    EXPECT_EQ(plainCellText(std::nan("")), "ERR");
}

}  // namespace
}  // namespace velmora
