#include "spreadsheet/infix_to_rpn.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "spreadsheet/repeated.h"

namespace velmora {
namespace {

using test::repeated;

struct InfixRow {
    const char* infix;
    const char* postfix;
};

TEST(InfixToRpn, TakesWhatTheWayBackDoesNotWrite) {
    const InfixRow rows[] = {
        {"  ", ""},
        {" A1 + B1 ", "A1 B1 +"},
        {"((A1))", "A1"},
        {"A1&B1|!C1", "A1 B1 C1 ! | &"},
    };
    for (const InfixRow& row : rows) {
        EXPECT_EQ(InfixToRpn(row.infix), row.postfix) << row.infix;
    }
}

TEST(InfixToRpn, ParenthesesChangeTheGroupingOfEqualRanks) {
    EXPECT_EQ(InfixToRpn("(A1-B1)-C1"), "A1 B1 - C1 -");
}

TEST(InfixToRpn, TheCommonDialectMarksParenthesesForTheOperatorBesideThemAlone) {
    EXPECT_EQ(InfixToRpn("(A1+B1)*C1", WksDialect::Common), "A1 B1 + () C1 *");
    EXPECT_EQ(InfixToRpn("(A1+B1)--C1", WksDialect::Common), "A1 B1 + C1 _ -") << "not for the sign";
}

TEST(InfixToRpn, PowersAreTwoStars) {
    EXPECT_EQ(InfixToRpn("A1**2"), "A1 2 ^");
    EXPECT_EQ(InfixToRpn("A1^2"), "A1 2 ^");
    EXPECT_EQ(InfixToRpn("A1***2"), "A1 ^ 2 *");
}

TEST(InfixToRpn, SignsInFrontOfAnOperand) {
    EXPECT_EQ(InfixToRpn("-A1"), "A1 _");
    EXPECT_EQ(InfixToRpn("+A1"), "A1");
    EXPECT_EQ(InfixToRpn("A1--B1"), "A1 B1 _ -");
    EXPECT_EQ(InfixToRpn("A1*-B1"), "A1 B1 _ *");
    EXPECT_EQ(InfixToRpn("A1**-B1"), "A1 ^ B1 _") << "the sign ranks below the power that waits";
    EXPECT_EQ(InfixToRpn("A1*+B1"), "A1 B1 *");
    EXPECT_EQ(InfixToRpn("(-A1)"), "A1 _");
    EXPECT_EQ(InfixToRpn("(A1)-B1"), "A1 B1 -");
    EXPECT_EQ(InfixToRpn("-A1**2"), "A1 2 ^ _");
}

TEST(InfixToRpn, LogicIsWrittenInWords) {
    EXPECT_EQ(InfixToRpn("A1 AND B1"), "A1 B1 &");
    EXPECT_EQ(InfixToRpn("A1 or B1"), "A1 B1 |");
    EXPECT_EQ(InfixToRpn("NOT A1"), "A1 !");
    EXPECT_EQ(InfixToRpn("Not A1>0 And B1"), "A1 0 > ! B1 &");
    EXPECT_EQ(InfixToRpn("ANDY"), "ANDY");
    EXPECT_EQ(InfixToRpn("A1 AND -B1"), "A1 B1 _ &");
}

TEST(InfixToRpn, AWordWithParenthesesIsACall) {
    EXPECT_EQ(InfixToRpn("NOT(A1)"), "A1 NOT(1)") << "which is no function: a blank is needed";
    EXPECT_EQ(InfixToRpn("NOT (A1)"), "A1 !");
}

TEST(InfixToRpn, CallsComeBehindTheirArguments) {
    EXPECT_EQ(InfixToRpn("SUM(A1:A3)"), "A1:A3 SUM(1)");
    EXPECT_EQ(InfixToRpn("PI"), "PI");
    EXPECT_EQ(InfixToRpn("ABS((A1+B1)*2)"), "A1 B1 + 2 * ABS(1)");
    EXPECT_EQ(InfixToRpn("sum(a1)"), "a1 sum(1)");
    EXPECT_EQ(InfixToRpn("SUM( A1 , B1 )"), "A1 B1 SUM(2)");
}

TEST(InfixToRpn, ArgumentsSplitAtEveryComma) {
    EXPECT_EQ(InfixToRpn("SUM(A1,MAX(B1,C1))"), "A1 SUM(3)") << "MAX(B1 and C1) both fail";
    EXPECT_EQ(InfixToRpn("SUM(\"a,b\")"), "b\" SUM(2)") << "a quote never closed, and a name";
}

TEST(InfixToRpn, WhatFailsInOneArgumentEmptiesThatOneOnly) {
    EXPECT_EQ(InfixToRpn("SUM(A1,?,C1)"), "A1 C1 SUM(3)");
    EXPECT_EQ(InfixToRpn("SUM(A1,,C1)"), "A1 C1 SUM(3)");
    EXPECT_EQ(InfixToRpn("SUM( )"), "SUM(1)");
}

TEST(InfixToRpn, WhatFollowsACallBelongsToItsName) {
    EXPECT_EQ(InfixToRpn("ABS(A1)B"), "ABS(1)");
}

TEST(InfixToRpn, NumbersGoOnWithDigitsPointAndE) {
    EXPECT_EQ(InfixToRpn(".5*2"), ".5 2 *");
    EXPECT_EQ(InfixToRpn("2e5"), "2e5");
    EXPECT_EQ(InfixToRpn("5.0E-1"), "5.0E 1 -") << "the sign of an exponent is a minus";
    EXPECT_EQ(InfixToRpn("2A1"), "2 A1");
    EXPECT_EQ(InfixToRpn("5.0E-1", WksDialect::Common), "5.0E-1");
    EXPECT_EQ(InfixToRpn("5.0e+1", WksDialect::Common), "5.0e+1");
    EXPECT_EQ(InfixToRpn("5.0E-A1", WksDialect::Common), "5.0E A1 -");
}

TEST(InfixToRpn, AQuotedTextIsOneOperand) {
    EXPECT_EQ(InfixToRpn("A1=\"a b\""), "A1 \"a b\" =");
    EXPECT_EQ(InfixToRpn("\"(\"+A1"), "\"(\" A1 +");
}

TEST(InfixToRpn, WhatCannotBeConvertedIsEmpty) {
    for (const char* infix : {"(A1", "A1)", "(A1+B1", "A1)+(B1", "SUM(A1", "SUM(A1,(B1)", "\"abc", "A1+\"abc",
                              "A1+?", "#A1", ",", "A1+{B1}", "_A1"}) {
        EXPECT_EQ(InfixToRpn(infix), "") << infix;
    }
    EXPECT_EQ(InfixToRpn("A1;B1"), "A1;B1") << "a name takes every other character in";
}

TEST(InfixToRpn, NestedConversionsHaveStacksOfTheirOwn) {
    EXPECT_EQ(InfixToRpn("A1+ABS(B1-C1)*D1"), "A1 B1 C1 - ABS(1) D1 * +");
}

TEST(InfixToRpn, The102ndWaitingOperatorIsOneTooMany) {
    EXPECT_NO_THROW(InfixToRpn(repeated("-", 101) + "A1"));
    try {
        InfixToRpn(repeated("-", 102) + "A1");
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 9);
    }
}

TEST(InfixToRpn, CallsNestToABound) {
    const auto nested = [](int depth) { return repeated("ABS(", depth) + "A1" + repeated(")", depth); };
    EXPECT_EQ(InfixToRpn(nested(3)), "A1 ABS(1) ABS(1) ABS(1)");
    EXPECT_NO_THROW(InfixToRpn(nested(kDeepestCall)));
    EXPECT_THROW(InfixToRpn(nested(kDeepestCall + 1)), RunTimeError);
    EXPECT_THROW(InfixToRpn(repeated("(", 40'000)), RunTimeError);
}

}  // namespace
}  // namespace velmora
