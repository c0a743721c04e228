#include "spreadsheet/formula_encoder.h"

#include <gtest/gtest.h>

#include <random>

#include "base/run_time_error.h"
#include "spreadsheet/formula_tables.h"
#include "spreadsheet/tokens.h"

namespace velmora {
namespace {

using test::a1;
using test::absoluteRef;
using test::b1;
using test::bytes;
using test::end;
using test::integer;
using test::kC1;
using test::number;
using test::ref;

/// Encodes a formula that stands in C1.
std::string encode(const std::string& text) {
    return EncodeFormula(text, kC1);
}

const std::string errorToken = bytes({32, 3});

TEST(EncodeFormula, EndsWithTheEndToken) {
    EXPECT_EQ(encode(""), end);
    EXPECT_EQ(encode("A1"), a1 + end);
}

TEST(EncodeFormula, ASignThatChangesNothingHasNoToken) {
    EXPECT_EQ(encode("+A1"), a1 + end);
}

TEST(EncodeFormula, BlanksInARowAreAsOne) {
    const std::string once = encode("\"( (\"");
    EXPECT_NE(once, errorToken);
    EXPECT_EQ(encode("\"(   (\""), once);
}

TEST(EncodeFormula, ChooseCarriesItsCount) {
    EXPECT_EQ(encode("CHOOSE(A1,B1)"), a1 + b1 + bytes({47, 2}) + end);
}

TEST(EncodeFormula, ACallOfNothingMayHaveItsParentheses) {
    for (const std::string name : {"PI", "RAND", "TODAY", "TRUE", "FALSE", "NA", "ERR"}) {
        EXPECT_EQ(encode(name + "()"), encode(name)) << name;
    }
    EXPECT_EQ(encode("pi"), bytes({38}) + end);
}

TEST(EncodeFormula, NumbersWithAPointOrFrom32768UpAreDoubles) {
    EXPECT_EQ(encode("1.5"), number(1.5) + end);
    EXPECT_EQ(encode("1.0"), number(1) + end);
    EXPECT_EQ(encode("40000"), number(40000) + end);
    EXPECT_EQ(encode("32768"), number(32768) + end);
    EXPECT_EQ(encode("2E3"), integer(2000) + end);
    EXPECT_EQ(encode("2e3"), integer(2000) + end);
    EXPECT_EQ(encode("2E5"), number(200000) + end);
    EXPECT_EQ(encode(".5"), number(0.5) + end);
}

TEST(EncodeFormula, WhatIsNoNumberAsAWholeIsErr) {
    for (const char* text : {"5.0E-1", "1E", "1.2.3", ".", "1E5E5", "1E999"}) {
        EXPECT_EQ(encode(text), errorToken) << text;
    }
}

TEST(EncodeFormula, TheCommonDialectHasNumbersBelowOneWithoutAPoint) {
    EXPECT_EQ(EncodeFormula("5E-1", kC1, WksDialect::Common), number(0.5) + end);
    EXPECT_EQ(EncodeFormula("5e-1", kC1, WksDialect::Common), number(0.5) + end);
    EXPECT_EQ(EncodeFormula("5E-1*A1", kC1, WksDialect::Common), number(0.5) + a1 + bytes({11}) + end);
}

TEST(EncodeFormula, ReferencesMayBeSmallLetters) {
    EXPECT_EQ(encode("d2"), ref(1, 1) + end);
}

TEST(EncodeFormula, StringsEndInAZeroByte) {
    EXPECT_EQ(encode("\"abc\""), test::string("abc") + end);
    EXPECT_EQ(encode("\"\""), test::string("") + end);
    EXPECT_EQ(encode("A1=\"x\""), a1 + test::string("x") + bytes({14}) + end);
}

TEST(EncodeFormula, AStringWithABlankIsErr) {
    EXPECT_EQ(encode("\"a b\""), errorToken);
    EXPECT_EQ(encode("\"a \""), errorToken);
}

TEST(EncodeFormula, AStringWithAParenthesisIsOneByteErr) {
    EXPECT_EQ(encode("A1=\"(\""), a1 + bytes({32, 14}) + end);
}

TEST(EncodeFormula, AnUnknownFunctionIsOneByteInItsPlace) {
    EXPECT_EQ(encode("A1+FOO(B1)"), a1 + b1 + bytes({32, 9}) + end);
    EXPECT_EQ(encode("OPL(1)+A1"), integer(1) + bytes({32}) + a1 + bytes({9}) + end);
}

TEST(EncodeFormula, AnUnknownOperandMakesTheWholeErr) {
    EXPECT_EQ(encode("A1+FOO"), errorToken);
    EXPECT_EQ(encode("AA1"), errorToken);
    EXPECT_EQ(encode("A1,B1"), errorToken);
    EXPECT_EQ(encode("A1+A99999"), errorToken);
}

TEST(EncodeFormula, WhatCannotBeConvertedIsTheEndTokenAlone) {
    for (const char* text : {"(A1", "A1+?", "\"abc", "SUM(A1"}) {
        EXPECT_EQ(encode(text), end) << text;
    }
}

TEST(EncodeFormula, NoTextThrowsAnythingButARunTimeError) {
    std::mt19937 random(11);
    const std::string likely = "AB12$:()+-*/^=<>!&|,.E \"SUMPI";
    for (int i = 0; i < 20'000; ++i) {
        std::string text(random() % 80, '\0');
        for (char& c : text) {
            c = random() % 20 == 0 ? static_cast<char>(random()) : likely[random() % likely.size()];
        }
        for (const WksDialect dialect : {WksDialect::Own, WksDialect::Common}) {
            try {
                ASSERT_EQ(EncodeFormula(text, {50, 12}, dialect).back(), '\3') << text;
            } catch (const RunTimeError&) {
            }
        }
    }
}

}  // namespace
}  // namespace velmora
