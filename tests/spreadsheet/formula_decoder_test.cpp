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

TEST(DecodeFormula, WorkedExamples) {
    EXPECT_EQ(decode(a1 + number(2) + bytes({11}) + b1 + bytes({9}) + end), "A1*2.0E0+B1");
    EXPECT_EQ(decode(a1 + b1 + bytes({9}) + number(2) + bytes({11}) + end), "(A1+B1)*2.0E0");
}

TEST(DecodeFormula, NumbersComeOutInExponentForm) {
    EXPECT_EQ(decode(number(2)), "2.0E0");
    EXPECT_EQ(decode(number(-1.5)), "-1.5E0");
    EXPECT_EQ(decode(number(-0.0)), "0.0E0");
    EXPECT_EQ(decode(number(0.00001)), "1.0E-5");
    EXPECT_EQ(decode(number(std::numeric_limits<double>::infinity())), "ERR");
    EXPECT_EQ(decode(number(-std::numeric_limits<double>::quiet_NaN())), "ERR");
}

TEST(DecodeFormula, IntegersComeOutInDigits) {
    EXPECT_EQ(decode(integer(7)), "7");
    EXPECT_EQ(decode(integer(-7)), "-7");
    EXPECT_EQ(decode(integer(-32768)), "-32768");
}

TEST(DecodeFormula, ReferencesResolveAgainstTheFormulasCell) {
    EXPECT_EQ(decode(a1), "A1");
    EXPECT_EQ(decode(absoluteRef(0, 0)), "$A$1");
    EXPECT_EQ(decode(absoluteRef(0, 98)), "$A$99");
    EXPECT_EQ(decode(absoluteRef(0, 99)), "ERR");
    EXPECT_EQ(decode(absoluteRef(0, 99) + a1 + bytes({9})), "ERR+A1") << "the rest stays";
}

TEST(DecodeFormula, AReferenceLeftOfTheSheetEmptiesTheFormula) {
    EXPECT_EQ(DecodeFormula(ref(-1, 0), {0, 0}), "") << "@1 is no text of a formula";
}

TEST(DecodeFormula, ARangeStandsInAnArgumentList) {
    const std::string range = bytes({2}) + test::relative(-2, 0) + test::relative(-1, 1);
    EXPECT_EQ(decode(range + bytes({80, 1}) + end), "SUM(A1:B2)");
}

TEST(DecodeFormula, EveryOperator) {
    const struct {
        int code;
        const char* text;
    } rows[] = {{9, "A1+B1"},  {10, "A1-B1"},     {11, "A1*B1"},   {12, "A1/B1"},  {13, "A1**B1"},
                {14, "A1=B1"}, {15, "A1<>B1"},    {16, "A1<=B1"},  {17, "A1>=B1"}, {18, "A1<B1"},
                {19, "A1>B1"}, {20, "A1 AND B1"}, {21, "A1 OR B1"}};
    for (const auto& row : rows) {
        EXPECT_EQ(decode(a1 + b1 + bytes({row.code})), row.text);
    }
    EXPECT_EQ(decode(a1 + bytes({8})), "-A1");
    EXPECT_EQ(decode(a1 + bytes({22})), " NOT A1");
}

TEST(DecodeFormula, NotOverAComparisonNeedsNoParentheses) {
    EXPECT_EQ(decode(a1 + integer(0) + bytes({19, 22})), " NOT A1>0");
    EXPECT_EQ(decode(a1 + b1 + bytes({20, 22})), " NOT (A1 AND B1)");
}

TEST(DecodeFormula, PowersAndLogicAreInTheOrganisersNotation) {
    EXPECT_EQ(decode(a1 + number(2) + bytes({13})), "A1**2.0E0");
    EXPECT_EQ(decode(a1 + b1 + bytes({20})), "A1 AND B1");
}

TEST(DecodeFormula, EveryFunctionOfAFixedCount) {
    for (int code = 31; code <= 90; ++code) {
        if (!isFunctionCode(code) || readsArgumentCount(code) || code == 47) {
            continue;
        }
        const std::string token = FunctionName(code);
        const std::string name = token.substr(0, token.find('('));
        const int count = token[name.size() + 1] - '0';
        std::string expected = name;
        std::string tokens;
        for (int i = 0; i < count; ++i) {
            tokens += ref(-2, i);
            expected += (i == 0 ? "(A" : ",A") + std::to_string(i + 1);
        }
        expected += count > 0 ? ")" : "";
        EXPECT_EQ(decode(tokens + bytes({code})), expected) << code;
    }
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

TEST(DecodeFormula, EqualRankLosesItsGrouping) {
    EXPECT_EQ(decode(a1 + b1 + c1 + bytes({10, 10})), "A1-B1-C1");
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
