#include "spreadsheet/formula_decoder.h"

#include <gtest/gtest.h>

#include <limits>
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
using test::c1;
using test::end;
using test::integer;
using test::kC1;
using test::number;
using test::ref;

/// Decodes tokens of a formula in C1.
std::string decode(const std::string& tokens) {
    return DecodeFormula(tokens, kC1);
}

TEST(DecodeFormula, NothingIsAnEmptyFormula) {
    EXPECT_EQ(decode(""), "");
    EXPECT_EQ(decode(end), "");
}

TEST(DecodeFormula, EqualRankLosesItsGrouping) {
    EXPECT_EQ(decode(a1 + b1 + bytes({10}) + c1 + bytes({10})), "A1-B1-C1") << "as with the other grouping";
}

TEST(DecodeFormula, NumbersComeOutInExponentForm) {
    EXPECT_EQ(decode(number(-1.5)), "-1.5E0");
    EXPECT_EQ(decode(number(-0.0)), "0.0E0");
    EXPECT_EQ(decode(number(0.00001)), "1.0E-5");
    EXPECT_EQ(decode(number(std::numeric_limits<double>::infinity())), "ERR");
    EXPECT_EQ(decode(number(-std::numeric_limits<double>::quiet_NaN())), "ERR");
}

TEST(DecodeFormula, IntegersComeOutInDigits) {
    EXPECT_EQ(decode(integer(-7)), "-7");
    EXPECT_EQ(decode(integer(-32768)), "-32768");
}

TEST(DecodeFormula, AReferenceBelowTheSheetIsErr) {
    EXPECT_EQ(decode(absoluteRef(0, 99)), "ERR");
    EXPECT_EQ(decode(absoluteRef(0, 99) + a1 + bytes({9})), "ERR+A1") << "the rest stays";
}

TEST(DecodeFormula, AReferenceLeftOfTheSheetEmptiesTheFormula) {
    EXPECT_EQ(DecodeFormula(ref(-1, 0), {0, 0}), "") << "@1 is no text of a formula";
}

TEST(DecodeFormula, EveryFunctionWithACountByte) {
    for (const int code : {80, 81, 82, 83, 84, 87, 88}) {
        const std::string token = FunctionName(code, 3);
        EXPECT_EQ(decode(a1 + b1 + c1 + bytes({code, 3})), token.substr(0, token.find('(')) + "(A1,B1,C1)");
    }
    EXPECT_EQ(decode(bytes({80, 0})), "SUM");
}

TEST(DecodeFormula, ChooseIsReadWithoutACount) {
    EXPECT_EQ(decode(a1 + b1 + bytes({47})), "CHOOSE");
    EXPECT_EQ(decode(bytes({47, 2})), "ERR") << "the count byte is taken for a token: a range cut short";
}

TEST(DecodeFormula, EmptyParenthesesVanish) {
    EXPECT_EQ(decode(bytes({38})), "PI");
    EXPECT_EQ(decode(bytes({55, 34})), "TODAY") << "INT(TODAY())";
    EXPECT_EQ(decode(a1 + bytes({9})), "+A1") << "the missing operand";
}

TEST(DecodeFormula, StringsStandAsTheyAre) {
    EXPECT_EQ(decode(test::string("ABC") + end), "ABC");
    EXPECT_EQ(decode(test::string("\"A B\"") + end), "\"A B\"");
    EXPECT_EQ(decode(test::string("\"a^b!()\"") + end), "\"a**b NOT \"") << "rewritten inside quotes too";
    EXPECT_EQ(decode(test::string("two words") + end), "words");
    EXPECT_EQ(decode(test::string("a,b") + end), "a,b");
    EXPECT_EQ(decode(test::string("?") + end), "");
    EXPECT_EQ(decode(test::string("") + a1), "A1");
    EXPECT_EQ(decode(test::string("\"open")), "ERR");
}

TEST(DecodeFormula, UnknownTokensAreErr) {
    for (int code = 0; code < 256; ++code) {
        const bool known = code <= 22 ? code != 4 && code != 7 : isFunctionCode(code);
        if (!known) {
            EXPECT_EQ(decode(a1 + bytes({code}) + b1), "ERR") << code;
        }
    }
}

TEST(DecodeFormula, ATokenCutShortIsErr) {
    for (const std::string& token : {number(2), a1, bytes({2}) + std::string(8, '\0'), integer(1),
                                     test::string("abc"), bytes({80, 1})}) {
        for (std::size_t length = 1; length < token.size(); ++length) {
            EXPECT_EQ(decode(token.substr(0, length)), "ERR");
        }
        EXPECT_NE(decode(token), "ERR");
    }
}

TEST(DecodeFormula, BytesBehindTheEndDoNotCount) {
    EXPECT_EQ(decode(a1 + end + bytes({255, 255})), "A1");
}

TEST(DecodeFormula, AtMost250Characters) {
    const auto sum = [](int terms) {
        std::string tokens = integer(1);
        for (int i = 1; i < terms; ++i) {
            tokens += integer(1) + bytes({9});
        }
        return tokens;
    };
    EXPECT_EQ(decode(sum(125)).size(), 249U);
    EXPECT_EQ(decode(integer(11) + sum(124) + bytes({9})).size(), 250U);
    EXPECT_EQ(decode(sum(126)), "ERR");
    EXPECT_EQ(decode(integer(100) + sum(124) + bytes({9})), "ERR") << "251";
}

TEST(DecodeFormula, TooManyOperandsAreARunTimeError) {
    std::string tokens;
    for (int i = 0; i < 102; ++i) {
        tokens += integer(1);
    }
    EXPECT_THROW(decode(tokens), RunTimeError);
}

TEST(DecodeFormula, NoBytesThrowAnythingElse) {
    std::mt19937 random(7);
    // Weighted towards bytes that are tokens.
    const std::string likely =
        bytes({0, 1, 2, 3, 5, 6, 8, 9, 13, 20, 22, 31, 38, 47, 63, 80, 88, 90, '"', '('});
    for (int i = 0; i < 20'000; ++i) {
        std::string tokens(random() % 120, '\0');
        for (char& c : tokens) {
            c = random() % 3 == 0 ? static_cast<char>(random()) : likely[random() % likely.size()];
        }
        for (const WksDialect dialect : {WksDialect::Own, WksDialect::Common}) {
            try {
                ASSERT_LE(DecodeFormula(tokens, {50, 12}, dialect).size(), 250U);
            } catch (const RunTimeError& error) {
                ASSERT_EQ(error.number(), 9);
            }
        }
    }
}

}  // namespace
}  // namespace velmora
