// Formulas and what they are in a worksheet, for encoder and decoder alike.
#pragma once

#include <string>
#include <vector>

#include "spreadsheet/formula_tables.h"
#include "spreadsheet/tokens.h"
#include "spreadsheet/wks_dialect.h"

namespace velmora::test {

/// A formula that stands in C1 (kC1) as its text and as its tokens, in either direction.
struct FormulaCase {
    std::string text;
    std::string tokens;
    WksDialect dialect = WksDialect::Own;
};

/// A call of every function that reads as it is written: "SUM(A1,A1)".
inline std::vector<FormulaCase> calls() {
    constexpr int kChoose = 47;  // is read without the count that it is written with
    std::vector<FormulaCase> rows;
    for (int code = kFirstFixedFunction; code <= kLastListFunction; ++code) {
        if (!isFunctionCode(code) || code == kChoose) {
            continue;
        }
        const std::string token = FunctionName(code, 2);
        const std::string name = token.substr(0, token.find('('));
        const int count = token[name.size() + 1] - '0';
        FormulaCase row{name, {}};
        for (int i = 0; i < count; ++i) {
            row.text += i == 0 ? "(A1" : ",A1";
            row.tokens += a1;
        }
        row.text += count > 0 ? ")" : "";
        row.tokens += static_cast<char>(code);
        if (readsArgumentCount(code)) {
            row.tokens += static_cast<char>(count);
        }
        rows.push_back(row);
    }
    return rows;
}

inline std::vector<FormulaCase> formulaCases() {
    constexpr WksDialect kCommon = WksDialect::Common;
    const std::string rangeToA3 = bytes({2}) + relative(-2, 0) + relative(-2, 2);
    std::vector<FormulaCase> rows = {
        {"", ""},
        {"A1", a1},
        {"B1", bytes({1, 0xFF, 0xBF, 0x00, 0x80})},  // one column to the left is 0xBFFF
        {"D2", ref(1, 1)},
        {"$A$1", absoluteRef(0, 0)},
        {"$A$99", absoluteRef(0, 98)},
        {"7", integer(7)},
        {"32767", integer(32767)},
        {"2.0E0", number(2)},
        {"1.5E0", number(1.5)},
        {"4.0E4", number(40000)},
        {"A1+B1", a1 + b1 + bytes({9})},
        {"A1-B1", a1 + b1 + bytes({10})},
        {"A1*B1", a1 + b1 + bytes({11})},
        {"A1/B1", a1 + b1 + bytes({12})},
        {"A1**B1", a1 + b1 + bytes({13})},
        {"A1=B1", a1 + b1 + bytes({14})},
        {"A1<>B1", a1 + b1 + bytes({15})},
        {"A1<=B1", a1 + b1 + bytes({16})},
        {"A1>=B1", a1 + b1 + bytes({17})},
        {"A1<B1", a1 + b1 + bytes({18})},
        {"A1>B1", a1 + b1 + bytes({19})},
        {"A1 AND B1", a1 + b1 + bytes({20})},
        {"A1 OR B1", a1 + b1 + bytes({21})},
        {"-A1", a1 + bytes({8})},
        {"-7", integer(7) + bytes({8})},
        {" NOT A1", a1 + bytes({22})},
        {" NOT A1>0", a1 + integer(0) + bytes({19, 22})},
        {" NOT (A1 AND B1)", a1 + b1 + bytes({20, 22})},
        {"A1**2", a1 + integer(2) + bytes({13})},
        {"A1*2.0E0+B1", a1 + number(2) + bytes({11}) + b1 + bytes({9})},
        {"(A1+B1)*2.0E0", a1 + b1 + bytes({9}) + number(2) + bytes({11})},
        {"A1-B1-C1", a1 + b1 + c1 + bytes({10, 10})},  // equal ranks group to the right
        {"SUM(A1:A3)", rangeToA3 + bytes({80, 1})},
        {"SUM(A1,B1,C1)", a1 + b1 + c1 + bytes({80, 3})},
        {"ERR", bytes({32})},
        {"A1-B1-C1", a1 + b1 + bytes({10}) + c1 + bytes({10}), kCommon},
        {"A1-(B1-C1)", a1 + b1 + c1 + bytes({10, 4, 10}), kCommon},
        {"(A1+B1)*C1", a1 + b1 + bytes({9, 4}) + c1 + bytes({11}), kCommon},
        {"-(A1**2)", a1 + integer(2) + bytes({13, 4, 8}), kCommon},
        {"MOD(A1,B1)", a1 + b1 + bytes({47}), kCommon},
        {"CHOOSE(A1,B1,C1)", a1 + b1 + c1 + bytes({48, 3}), kCommon},
        {"5.0E-1", number(0.5), kCommon},
        {"IF(A1,\"a b\",\"(\")", a1 + string("a b") + string("(") + bytes({59}), kCommon},
        {"SUM(A1,MAX(B1,C1))", a1 + b1 + c1 + bytes({84, 2, 80, 2}), kCommon},
    };
    const std::vector<FormulaCase> functions = calls();
    rows.insert(rows.end(), functions.begin(), functions.end());
    return rows;
}

/// A formula's text and its postfix text, in either direction. "^" and "&" are what the conversions between
/// them know of "**" and AND.
struct PostfixCase {
    const char* infix;
    const char* postfix;
    WksDialect dialect = WksDialect::Own;
};

inline std::vector<PostfixCase> postfixCases() {
    constexpr WksDialect kCommon = WksDialect::Common;
    return {
        {"", ""},
        {"A1", "A1"},
        {"$A$1:B2", "$A$1:B2"},
        {"A1+B1", "A1 B1 +"},
        {"A1+B1*C1", "A1 B1 C1 * +"},
        {"A1*B1+C1", "A1 B1 * C1 +"},
        {"(A1+B1)*C1", "A1 B1 + C1 *"},
        {"A1*(B1+C1)", "A1 B1 C1 + *"},
        {"A1=B1", "A1 B1 ="},
        {"A1<>B1", "A1 B1 <>"},
        {"A1<=B1", "A1 B1 <="},
        {"A1>=B1", "A1 B1 >="},
        {"A1<B1", "A1 B1 <"},
        {"A1>B1", "A1 B1 >"},
        {"!A1>0", "A1 0 > !"},
        {"!(A1&B1)", "A1 B1 & !"},
        {"A1&B1|C1", "A1 B1 C1 | &"},
        {"(-A1)^B1", "A1 _ B1 ^"},
        {"-A1^B1", "A1 B1 ^ _"},
        {"-(A1+B1)", "A1 B1 + _"},
        {"A1-B1-C1", "A1 B1 C1 - -"},
        {"A1/B1*C1", "A1 B1 C1 * /"},
        {"PI()", "PI(0)"},
        {"SUM(A1,B1,C1)", "A1 B1 C1 SUM(3)"},
        {"SUM(A1:B2)*2", "A1:B2 SUM(1) 2 *"},
        {"ABS(A1+B1)", "A1 B1 + ABS(1)"},
        {"ABS(INT(A1))", "A1 INT(1) ABS(1)"},
        {"ROUND(A1+1,2)*3", "A1 1 + 2 ROUND(2) 3 *"},
        {"1.5E3+2", "1.5E3 2 +"},
        {"\"a b+c\"=A1", "\"a b+c\" A1 ="},
        {"A1-B1-C1", "A1 B1 - C1 -", kCommon},
        {"A1*(B1+C1)", "A1 B1 C1 + () *", kCommon},
        {"A1-(B1-C1)", "A1 B1 C1 - () -", kCommon},
        {"A1/(B1*C1)", "A1 B1 C1 * () /", kCommon},
        {"-(A1+B1)", "A1 B1 + () _", kCommon},
        {"(-A1)^2", "A1 _ () 2 ^", kCommon},
        {"A1=(B1=C1)", "A1 B1 C1 = () =", kCommon},
        {"(A1|B1)=C1", "A1 B1 | () C1 =", kCommon},
        {"A1*(B1*(C1+1))", "A1 B1 C1 1 + () * () *", kCommon},
    };
}

}  // namespace velmora::test
