#include "spreadsheet/sheet_number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "base/number_text.h"
#include "support/number_cases.h"

namespace velmora {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(ExponentText, IsThatOfTheTable) {
    for (const test::NumberText& row : test::numberTexts()) {
        EXPECT_EQ(exponentText(row.value), row.exponent);
    }
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
    for (const test::NumberText& row : test::numberTexts()) {
        EXPECT_EQ(plainCellText(row.value), row.plain);
    }
    EXPECT_EQ(plainCellText(kInfinity), "ERR");
    EXPECT_EQ(plainCellText(std::nan("")), "ERR");
}

}  // namespace
}  // namespace velmora
