#include "spreadsheet/rpn_to_infix.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "spreadsheet/formula_tables.h"
#include "spreadsheet/repeated.h"

namespace velmora {
namespace {

using test::repeated;

TEST(RpnToInfix, BlanksMayStandAnywhere) {
    EXPECT_EQ(RpnToInfix(" A1  "), "A1");
    EXPECT_EQ(RpnToInfix("A1  B1 + 2.0E0 * "), "(A1+B1)*2.0E0");
}

TEST(RpnToInfix, EqualRankNeverAddsParentheses) {
    EXPECT_EQ(RpnToInfix("A1 B1 - C1 -"), "A1-B1-C1");
    EXPECT_EQ(RpnToInfix("A1 B1 C1 / *"), "A1*B1/C1");
}

TEST(RpnToInfix, MissingArgumentsAreEmptyAndFirst) {
    EXPECT_EQ(RpnToInfix("SUM(3)"), "SUM(,,)");
    EXPECT_EQ(RpnToInfix("A1 SUM(3)"), "SUM(,,A1)");
    EXPECT_EQ(RpnToInfix("SUM(1)"), "SUM()");
    EXPECT_EQ(RpnToInfix("A1 B1 SUM(1)"), "SUM(B1)");
}

TEST(RpnToInfix, AnEmptyStackGivesAnEmptyOperandOfRankZero) {
    EXPECT_EQ(RpnToInfix("A1 +"), "()+A1");
    EXPECT_EQ(RpnToInfix("+"), "()+()");
    EXPECT_EQ(RpnToInfix("_"), "-()");
}

TEST(RpnToInfix, OperandsThatNothingTakesAreDroppedButTheLast) {
    EXPECT_EQ(RpnToInfix("A1 B1"), "B1");
}

TEST(RpnToInfix, ReadsNamesUpToAnOperatorOrBlank) {
    EXPECT_EQ(RpnToInfix("$A$1 B1+"), "$A$1+B1");
    EXPECT_EQ(RpnToInfix("A1:ERR"), "A1:ERR");
    EXPECT_EQ(RpnToInfix("a.b_c B1 +"), "a.b_c+B1");
}

TEST(RpnToInfix, ReadsNumbers) {
    EXPECT_EQ(RpnToInfix("1.5E-3 2 +"), "1.5E-3+2");
    EXPECT_EQ(RpnToInfix(".5"), "0.5");
    EXPECT_EQ(RpnToInfix("1-2"), "1-2") << "signs belong to a number anywhere";
    EXPECT_EQ(RpnToInfix("1.5E+3 2 *"), "1.5E+3*2");
}

TEST(RpnToInfix, AQuotedTextIsOneOperand) {
    EXPECT_EQ(RpnToInfix("\"a\"\"b\""), "\"b\"");
}

TEST(RpnToInfix, WhatIsNeverClosedIsErr) {
    EXPECT_EQ(RpnToInfix("A1 \"abc"), "ERR");
    EXPECT_EQ(RpnToInfix("SUM(3"), "ERR");
}

TEST(RpnToInfix, ACharacterOutsideTheGrammarEmptiesTheResult) {
    for (const char* postfix : {"@1", "A1 B1 + ?", "(", ")", "A1 ()", ",", "#", "\xE4", "\t"}) {
        EXPECT_EQ(RpnToInfix(postfix), "") << postfix;
    }
    EXPECT_EQ(RpnToInfix(std::string(1, '\0')), "");
}

TEST(RpnToInfix, The102ndOperandIsOneTooMany) {
    EXPECT_EQ(RpnToInfix(repeated("A1 ", 101)), "A1");
    try {
        RpnToInfix(repeated("A1 ", 102));
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 9);
    }
}

TEST(RpnToInfix, OperandsDoNotGrowWithoutEnd) {
    EXPECT_EQ(RpnToInfix("X(65537)"), "ERR");
    EXPECT_EQ(RpnToInfix("X(99999999999999999999)"), "ERR");
    EXPECT_EQ(RpnToInfix(repeated("SUM(255) ", 500)), "ERR");
    EXPECT_EQ(RpnToInfix(std::string(kLongestOperand + 1, 'A')), "ERR");
    EXPECT_EQ(RpnToInfix(std::string(kLongestOperand, 'A')).size(), kLongestOperand);
    EXPECT_EQ(RpnToInfix(repeated(std::string(kLongestOperand / 2 + 1, 'A') + " ", 2)), "ERR")
        << "all that wait count together";
    EXPECT_EQ(RpnToInfix("X(-5)"), "X()");
}

TEST(RpnToInfix, TheCommonDialectHasParenthesesOfItsOwn) {
    EXPECT_EQ(RpnToInfix("A1 () B1 *", WksDialect::Common), "(A1)*B1");
    EXPECT_EQ(RpnToInfix("A1 (", WksDialect::Common), "");
}

}  // namespace
}  // namespace velmora
