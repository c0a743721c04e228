#include "spreadsheet/formula_tables.h"

#include <algorithm>
#include <array>

#include "base/byte_text.h"
#include "base/number_text.h"
#include "base/run_time_error.h"

namespace velmora {
namespace {

struct Operator {
    std::string_view symbol;
    std::int16_t precedence;
};

// In the order of their codes, from 8.
constexpr std::array<Operator, kLastOperator - kFirstOperator + 1> kOperators = {{
    {"_", 6},
    {"+", 4},
    {"-", 4},
    {"*", 5},
    {"/", 5},
    {"^", 7},
    {"=", 3},
    {"<>", 3},
    {"<=", 3},
    {">=", 3},
    {"<", 3},
    {">", 3},
    {"&", 1},
    {"|", 1},
    {"!", 2},
}};

const Operator* findOperator(std::string_view symbol) {
    if (symbol.empty() || symbol.size() > 2) {
        return nullptr;
    }
    const auto* const found = std::find_if(kOperators.begin(), kOperators.end(), [&](const Operator& entry) {
        return entry.symbol.front() == symbol.front() && entry.symbol == symbol;
    });
    return found == kOperators.end() ? nullptr : found;
}

// "x" stands for any number of arguments.
constexpr std::array<std::string_view, kLastFixedFunction - kFirstFixedFunction + 1> kFixedFunctions = {
    "NA(0)",   "ERR(0)",   "ABS(1)",   "INT(1)",   "SQRT(1)", "LOG(1)",  "LN(1)",    "PI(0)",     "SIN(1)",
    "COS(1)",  "TAN(1)",   "ATAN2(2)", "ATAN(1)",  "ASIN(1)", "ACOS(1)", "EXP(1)",   "CHOOSE(x)", "MOD(2)",
    "ISNA(1)", "ISERR(1)", "FALSE(0)", "TRUE(0)",  "RAND(0)", "DATE(3)", "TODAY(0)", "PMT(3)",    "PV(3)",
    "FV(3)",   "IF(3)",    "DAY(1)",   "MONTH(1)", "YEAR(1)", "ROUND(2)"};
constexpr std::array<std::string_view, kLastListFunction - kFirstListFunction + 1> kListFunctions = {
    "SUM(x)", "AVG(x)", "COUNT(x)", "MIN(x)", "MAX(x)",    "VLOOKUP(3)",
    "NPV(2)", "VAR(x)", "STD(x)",   "IRR(2)", "HLOOKUP(3)"};

constexpr int kChooseOwn = 47;
constexpr int kModOwn = 48;

/// The dialects differ in which of two codes is which of two functions.
constexpr int translateCode(int code, WksDialect dialect) {
    if (dialect == WksDialect::Common && (code == kChooseOwn || code == kModOwn)) {
        return code == kChooseOwn ? kModOwn : kChooseOwn;
    }
    return code;
}

bool takesAnyNumber(std::string_view entry) {
    return entry[entry.size() - 2] == 'x';
}

/// Names count up to their fifth letter.
constexpr std::size_t kNameLetters = 5;

template <std::size_t Count>
std::optional<int> slotOf(const std::array<std::string_view, Count>& table, std::string_view name) {
    const auto found = std::find_if(table.begin(), table.end(), [&](std::string_view entry) {
        return entry.substr(0, name.size()) == name &&
               (name.size() == kNameLetters || entry[name.size()] == '(');
    });
    if (found == table.end()) {
        return std::nullopt;
    }
    return static_cast<int>(found - table.begin());
}

}  // namespace

std::int16_t OperatorPrecedence(std::string_view symbol) {
    const Operator* entry = findOperator(symbol);
    return entry == nullptr ? std::int16_t{0} : entry->precedence;
}

std::string_view operatorSymbol(int code) {
    return kOperators[static_cast<std::size_t>(code - kFirstOperator)].symbol;
}

std::optional<int> operatorCode(std::string_view symbol) {
    const Operator* entry = findOperator(symbol);
    if (entry == nullptr) {
        return std::nullopt;
    }
    return kFirstOperator + static_cast<int>(entry - kOperators.data());
}

bool isFunctionCode(int code) {
    return (code >= kFirstFixedFunction && code <= kLastFixedFunction) ||
           (code >= kFirstListFunction && code <= kLastListFunction);
}

bool readsArgumentCount(int code, WksDialect dialect) {
    if (code >= kFirstListFunction && code <= kLastListFunction) {
        return takesAnyNumber(kListFunctions[static_cast<std::size_t>(code - kFirstListFunction)]);
    }
    // The system's own reader takes every code below 64 for one byte, so its CHOOSE has no arguments.
    return dialect == WksDialect::Common && translateCode(code, dialect) == kChooseOwn;
}

std::string FunctionName(int code, int count, WksDialect dialect) {
    const int own = translateCode(code, dialect);
    std::string_view entry = "ERR(0)";
    if (own >= kFirstFixedFunction && own <= kLastFixedFunction) {
        entry = kFixedFunctions[static_cast<std::size_t>(own - kFirstFixedFunction)];
    } else if (own >= kFirstListFunction && own <= kLastListFunction) {
        entry = kListFunctions[static_cast<std::size_t>(own - kFirstListFunction)];
    }
    if (!takesAnyNumber(entry)) {
        return std::string(entry);
    }
    return std::string(entry.substr(0, entry.size() - 2)) + std::to_string(count) + ")";
}

std::string FunctionCode(std::string_view token, WksDialect dialect) {
    const std::size_t open = token.find('(');
    const std::string name = upperCase(token.substr(0, open));
    std::string unknown(1, static_cast<char>(kTokenErr));
    if (name == "OPL") {
        return unknown;
    }
    const std::string_view letters = std::string_view(name).substr(0, kNameLetters);
    std::string bytes;
    bool counts = false;
    if (const auto fixed = slotOf(kFixedFunctions, letters)) {
        const int own = kFirstFixedFunction + *fixed;
        bytes += static_cast<char>(translateCode(own, dialect));
        counts = own == kChooseOwn;
    } else if (const auto list = slotOf(kListFunctions, letters)) {
        bytes += static_cast<char>(kFirstListFunction + *list);
        counts = takesAnyNumber(kListFunctions[static_cast<std::size_t>(*list)]);
    } else {
        return unknown;
    }
    if (counts) {
        const double count = open == std::string_view::npos ? 0 : numericValue(token.substr(open + 1));
        if (!(count >= 0 && count <= 255)) {
            throw RunTimeError(ErrorNumber::InvalidProcedureCall, "more than 255 arguments");
        }
        bytes += static_cast<char>(static_cast<int>(count));
    }
    return bytes;
}

bool isBareFunction(std::string_view name) {
    constexpr std::array<std::string_view, 7> kBare = {"PI", "RAND", "TODAY", "TRUE", "FALSE", "NA", "ERR"};
    // Most operands are references or numbers, whose second character is a digit: no need to look them up.
    if (name.size() < 2 || name.size() > kNameLetters || (name[1] >= '0' && name[1] <= '9')) {
        return false;
    }
    return std::find(kBare.begin(), kBare.end(), upperCase(name)) != kBare.end();
}

}  // namespace velmora
