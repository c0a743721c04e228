// Formulas that survive a worksheet file: decode(encode(text)) gives the text again.
//
// In the system's own dialect these are the formulas made of references, ranges (inside calls), whole numbers
// below 32,768, numbers with a point written in exponent form with a positive exponent, calls of functions
// other than CHOOSE with at most one argument that itself has arguments, AND, OR and NOT with single blanks
// around them, signs in front of operands only where nothing of higher rank waits, and parentheses exactly
// where an operand ranks below its operator, or where a left operand of equal rank would need none.
#include <gtest/gtest.h>

#include <random>

#include "spreadsheet/formula_cases.h"
#include "spreadsheet/formula_decoder.h"
#include "spreadsheet/formula_encoder.h"
#include "spreadsheet/infix_to_rpn.h"
#include "spreadsheet/rpn_to_infix.h"

namespace velmora {
namespace {

constexpr CellPosition kCell{10, 5};

std::string roundTrip(const std::string& text, WksDialect dialect = WksDialect::Own) {
    return DecodeFormula(EncodeFormula(text, kCell, dialect), kCell, dialect);
}

TEST(FormulaRoundTrip, EveryRowOfTheTableReadsBothWays) {
    for (const test::FormulaCase& row : test::formulaCases()) {
        EXPECT_EQ(EncodeFormula(row.text, test::kC1, row.dialect), row.tokens + test::end) << row.text;
        EXPECT_EQ(DecodeFormula(row.tokens + test::end, test::kC1, row.dialect), row.text);
    }
}

TEST(FormulaRoundTrip, EveryPostfixTextOfTheTableReadsBothWays) {
    for (const test::PostfixCase& row : test::postfixCases()) {
        EXPECT_EQ(InfixToRpn(row.infix, row.dialect), row.postfix) << row.infix;
        EXPECT_EQ(RpnToInfix(row.postfix, row.dialect), row.infix) << row.postfix;
    }
}

TEST(FormulaRoundTrip, Examples) {
    for (const char* text : {"A1",
                             "$A$1",
                             "A$1+$B2",
                             "A1-B1-C1",
                             "A1/B1*C1",
                             "(A1+B1)*C1",
                             "A1*(B1+C1)",
                             "-A1+B1",
                             "-A1**2",
                             "(-A1)**2",
                             "SUM(A1:B99)",
                             "SUM(A1,B1,C1:D4)",
                             "ROUND(A1*1.5E2,2)",
                             "PI*2",
                             "IF(A1>B1,A1,B1)",
                             "A1 AND B1 OR C1",
                             "(A1 OR B1)*2",
                             "A1>0 AND  NOT B1",
                             "ABS(INT(A1))+1.0E0",
                             "32767",
                             "TODAY",
                             "VLOOKUP(A1,B1:C9,1)"}) {
        EXPECT_EQ(roundTrip(text), text);
    }
}

TEST(FormulaRoundTrip, WhatTheRulesChange) {
    const struct {
        const char* text;
        const char* after;
    } rows[] = {
        {"A1-(B1-C1)", "A1-B1-C1"},
        {"(A1=B1)=(C1=D1)", "A1=B1=C1=D1"},
        {"0.5", "5.0E-1"},
        {"5.0E-1", "ERR"},
        {"40000", "4.0E4"},
        {"\"abc\"", "abc"},
        {"CHOOSE(A1,2,3)", "CHOOSE"},
        {"((A1))", "A1"},
        {"A1^2", "A1**2"},
        {"NOT A1", " NOT A1"},
        {"NOT(A1)", "ERR"},
        {"+A1", "A1"},
        {"INT(TODAY)", "TODAY"},
        {"a1+sum(b1)", "A1+SUM(B1)"},
        {"FOO(A1)", "ERR"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(roundTrip(row.text), row.after) << row.text;
    }
}

/// Makes random formulas that the rules round-trip.
class FormulaMaker {
  public:
    /// `dialect`: whether calls of several arguments may stand within calls.
    FormulaMaker(unsigned seed, WksDialect dialect)
        : random_(seed), nestsLists_(dialect == WksDialect::Common) {}

    std::string formula() { return expression(3, 0); }

  private:
    struct Binary {
        const char* text;
        int rank;
    };

    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

    std::string reference() {
        std::string text = pick(3) == 0 ? "$" : "";
        text += static_cast<char>('A' + pick(26));
        text += pick(3) == 0 ? "$" : "";
        return text + std::to_string(1 + pick(99));
    }

    std::string operand(int depth) {
        switch (pick(depth > 0 ? 5 : 3)) {
            case 0:
                return std::to_string(pick(32768));
            case 1:
                return std::to_string(1 + pick(9)) + "." + std::to_string(1 + pick(9)) + "E" +
                       std::to_string(pick(9));
            case 3:
                return calls_ > 0 && !nestsLists_
                           ? reference()
                           : "SUM(" + reference() + ":" + reference() + "," + reference() + ")";
            case 4:
                return call(depth);
            default:
                return reference();
        }
    }

    std::string call(int depth) {
        ++calls_;
        const std::string text = (pick(2) == 0 ? "ABS(" : "SQRT(") + expression(depth - 1, 0) + ")";
        --calls_;
        return text;
    }

    /// An expression whose operators all rank above `floor`; parentheses only where a lower rank needs them.
    std::string expression(int depth, int floor) {
        static constexpr Binary kBinary[] = {{" AND ", 1}, {" OR ", 1}, {"=", 3}, {"<>", 3},
                                             {"<", 3},     {">=", 3},   {"+", 4}, {"-", 4},
                                             {"*", 5},     {"/", 5},    {"**", 7}};
        if (depth == 0 || pick(4) == 0) {
            return operand(depth);
        }
        const Binary& chosen = kBinary[pick(11)];
        // Operands rank above the operator itself or stand in parentheses, as an operand of lower rank must.
        const std::string text =
            expression(depth - 1, chosen.rank) + chosen.text + expression(depth - 1, chosen.rank);
        return chosen.rank < floor ? "(" + text + ")" : chosen.rank == floor ? operand(depth) : text;
    }

    std::mt19937 random_;
    bool nestsLists_;
    int calls_ = 0;  // those that the formula is inside of
};

TEST(FormulaRoundTrip, RandomFormulasComeBack) {
    FormulaMaker maker(3, WksDialect::Own);
    int compared = 0;
    for (int i = 0; i < 20'000; ++i) {
        const std::string text = maker.formula();
        if (text.size() > 250) {
            continue;
        }
        ++compared;
        ASSERT_EQ(roundTrip(text), text);
    }
    EXPECT_GT(compared, 15'000);
}

TEST(FormulaRoundTrip, RandomFormulasComeBackInTheCommonDialect) {
    FormulaMaker maker(4, WksDialect::Common);
    for (int i = 0; i < 20'000; ++i) {
        const std::string text = maker.formula();
        if (text.size() <= 250) {
            ASSERT_EQ(roundTrip(text, WksDialect::Common), text);
        }
    }
}

}  // namespace
}  // namespace velmora
