// What the common dialect of worksheet formulas does otherwise than the system's own.
#include "spreadsheet/wks_dialect.h"

#include <gtest/gtest.h>

#include "spreadsheet/formula_decoder.h"
#include "spreadsheet/formula_encoder.h"
#include "spreadsheet/formula_tables.h"
#include "spreadsheet/infix_to_rpn.h"
#include "spreadsheet/tokens.h"

namespace velmora {
namespace {

using test::bytes;
using test::end;
using test::integer;
using test::number;
using test::ref;

constexpr CellPosition kD1{0, 3};
const std::string a1 = ref(-3, 0);
const std::string b1 = ref(-2, 0);
const std::string c1 = ref(-1, 0);

std::string encode(const std::string& text) {
    return EncodeFormula(text, kD1, WksDialect::Common);
}
std::string decode(const std::string& tokens) {
    return DecodeFormula(tokens, kD1, WksDialect::Common);
}
std::string rpn(const std::string& text) {
    return InfixToRpn(text, WksDialect::Common);
}

TEST(CommonDialect, MarksParenthesesThatMatterOnce) {
    const struct {
        const char* text;
        const char* postfix;
    } rows[] = {
        {"((A1+B1))*C1", "A1 B1 + () C1 *"},
        {"(-A1)**2", "A1 _ () 2 ^"},
        {"NOT (A1 AND B1)", "A1 B1 & () !"},
        {"(A1 OR B1)=C1", "A1 B1 | () C1 ="},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(rpn(row.text), row.postfix) << row.text;
    }
}

TEST(CommonDialect, LeavesOutParenthesesThatDoNot) {
    const struct {
        const char* text;
        const char* postfix;
    } rows[] = {
        {"(A1)", "A1"},
        {"(A1+B1)", "A1 B1 +"},
        {"(A1*B1)+C1", "A1 B1 * C1 +"},
        {"A1+(B1*C1)", "A1 B1 C1 * +"},
        {"(A1-B1)-C1", "A1 B1 - C1 -"},
        {"(A1)*(B1)", "A1 B1 *"},
        {"A1+((B1))*C1", "A1 B1 C1 * +"},
        {"SUM((A1+B1),C1)", "A1 B1 + C1 SUM(2)"},
        {"(ABS(A1))*C1", "A1 ABS(1) C1 *"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(rpn(row.text), row.postfix) << row.text;
    }
}

TEST(CommonDialect, GroupsEqualRankToTheLeft) {
    EXPECT_EQ(rpn("A1-B1-C1"), "A1 B1 - C1 -");
    EXPECT_EQ(rpn("A1/B1*C1"), "A1 B1 / C1 *");
    EXPECT_EQ(rpn("A1**B1**C1"), "A1 B1 ^ C1 ^");
}

TEST(CommonDialect, ASignTakesTheOperandBehindIt) {
    EXPECT_EQ(rpn("A1*-B1"), "A1 B1 _ *");
    EXPECT_EQ(rpn("A1**-B1"), "A1 B1 _ ^");
    EXPECT_EQ(rpn("A1**-B1*C1"), "A1 B1 _ ^ C1 *");
    EXPECT_EQ(rpn("-A1+B1"), "A1 _ B1 +");
    EXPECT_EQ(rpn("NOT A1>0 AND B1"), "A1 0 > ! B1 &");
}

TEST(CommonDialect, ASignInFrontOfAPowerIsOfTheWholePower) {
    EXPECT_EQ(rpn("-A1**2"), "A1 2 ^ () _") << "elsewhere the sign would come first";
    EXPECT_EQ(rpn("-(A1**2)"), "A1 2 ^ () _");
    EXPECT_EQ(rpn("-A1**2**3"), "A1 2 ^ 3 ^ () _");
    EXPECT_EQ(rpn("-A1*2"), "A1 _ 2 *");
}

TEST(CommonDialect, Token47IsModAnd48IsChooseWithACount) {
    EXPECT_EQ(FunctionName(47, 0, WksDialect::Common), "MOD(2)");
    EXPECT_EQ(FunctionName(48, 4, WksDialect::Common), "CHOOSE(4)");
    EXPECT_EQ(decode(bytes({48})), "ERR") << "its count is missing";
}

TEST(CommonDialect, ParenthesesAroundNothingAreNoFormula) {
    EXPECT_EQ(decode(bytes({4})), "");
}

TEST(CommonDialect, TheOwnDialectKnowsNoToken4) {
    EXPECT_EQ(DecodeFormula(a1 + bytes({4}), kD1), "ERR");
}

TEST(CommonDialect, TakesTheSignOfAnExponent) {
    EXPECT_EQ(encode("A1*5E+1"), a1 + integer(50) + bytes({11}) + end);
    EXPECT_EQ(rpn("2E-A1"), "2E A1 -");
}

TEST(CommonDialect, SplitsArgumentsAsAReaderWould) {
    EXPECT_EQ(rpn("IF(A1=\"a,b\",1,2)"), "A1 \"a,b\" = 1 2 IF(3)");
    EXPECT_EQ(rpn("IF(A1=\")\",1,2)"), "A1 \")\" = 1 2 IF(3)");
}

TEST(CommonDialect, AStringWithQuotesStandsAsItIs) {
    EXPECT_EQ(decode(test::string("\"x\"")), "\"x\"");
}

TEST(CommonDialect, ParenthesesComeBack) {
    for (const char* text : {"A1-(B1-C1)", "(A1+B1)*C1", "CHOOSE(A1,2,3)", "MOD(A1,3)", "-(A1**2)",
                             "A1-B1-C1", "A1/(B1/(C1/D1))", "SUM(A1,MAX(B1,C1),5.0E-1)"}) {
        EXPECT_EQ(decode(encode(text)), text);
    }
}

}  // namespace
}  // namespace velmora
