// Operators and functions of worksheet formulas: token codes, symbols, names, ranks.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "spreadsheet/wks_dialect.h"

namespace velmora {

// Token codes that are neither operators nor functions.
constexpr int kTokenNumber = 0;       ///< + 8 bytes, a double
constexpr int kTokenReference = 1;    ///< + 4 bytes, column and row word
constexpr int kTokenRange = 2;        ///< + 8 bytes, two references
constexpr int kTokenEnd = 3;          ///< ends the formula
constexpr int kTokenParentheses = 4;  ///< common dialect: parentheses around the operand before it
constexpr int kTokenInteger = 5;      ///< + 2 bytes, signed
constexpr int kTokenString = 6;       ///< + text and a zero byte

constexpr int kFirstOperator = 8;
constexpr int kLastOperator = 22;
constexpr int kFirstFixedFunction = 31;
constexpr int kLastFixedFunction = 63;
constexpr int kFirstListFunction = 80;
constexpr int kLastListFunction = 90;
constexpr int kTokenErr = 32;  ///< the function ERR, which stands for whatever has no token

/// The mark of token 4 in a postfix text.
constexpr std::string_view kParenthesesSymbol = "()";

/// Ranks of operators: 7 for "^", 6 for "_" (unary minus), 5 for "*" and "/", 4 for "+" and "-", 3 for
/// comparisons, 2 for "!" (NOT), 1 for "&" (AND) and "|" (OR). Any other symbol is 0.
std::int16_t OperatorPrecedence(std::string_view symbol);
/// The rank of what is no operator: numbers, texts, references, calls.
constexpr std::int16_t kOperandPrecedence = 99;

/// Whether an operator has one operand, which stands behind it.
inline bool isUnary(std::string_view symbol) {
    return symbol == "_" || symbol == "!";
}
/// Whether a byte is an operator or begins one ("_" is none in a formula's text).
inline bool isOperatorByte(char c) {
    switch (c) {
        case '+':
        case '-':
        case '*':
        case '/':
        case '^':
        case '=':
        case '<':
        case '>':
        case '!':
        case '&':
        case '|':
            return true;
        default:
            return false;
    }
}

/// The postfix symbol of an operator's code, 8 to 22. Requires: a code in that range.
std::string_view operatorSymbol(int code);
/// The code of a symbol; nothing when it is none.
std::optional<int> operatorCode(std::string_view symbol);

/// Whether a code is a function's.
bool isFunctionCode(int code);
/// Whether a byte with the count of arguments follows a function's code when it is read.
bool readsArgumentCount(int code, WksDialect dialect = WksDialect::Own);

/// The postfix token of a function, its name and its count of arguments: "ROUND(2)". `count` is used where
/// the function takes any number of them. "ERR(0)" for a code that is no function's.
std::string FunctionName(int code, int count = 0, WksDialect dialect = WksDialect::Own);

/// The bytes of a function's postfix token: its code, and the count of arguments for those that carry one.
/// Names are compared in capitals by their first five letters. One byte 32 for an unknown name. RunTimeError
/// 5 for a count that a byte does not hold.
std::string FunctionCode(std::string_view token, WksDialect dialect = WksDialect::Own);

/// Whether a name is a function even without parentheses: PI RAND TODAY TRUE FALSE NA ERR, in any case.
bool isBareFunction(std::string_view name);

}  // namespace velmora
