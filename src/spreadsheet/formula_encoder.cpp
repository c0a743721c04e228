#include "spreadsheet/formula_encoder.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/number_text.h"
#include "spreadsheet/byte_conversions.h"
#include "spreadsheet/cell_reference.h"
#include "spreadsheet/formula_tables.h"
#include "spreadsheet/infix_to_rpn.h"

namespace velmora {
namespace {

/// Whether a token is a number as a whole: digits, "." and digits, "E" and an exponent.
bool isNumber(std::string_view token) {
    const auto takeDigits = [&] {
        std::size_t count = 0;
        while (count < token.size() && token[count] >= '0' && token[count] <= '9') {
            ++count;
        }
        token.remove_prefix(count);
        return count;
    };
    std::size_t digits = takeDigits();
    if (!token.empty() && token.front() == '.') {
        token.remove_prefix(1);
        digits += takeDigits();
    }
    if (digits > 0 && !token.empty() && (token.front() == 'E' || token.front() == 'e')) {
        token.remove_prefix(1);
        if (!token.empty() && (token.front() == '-' || token.front() == '+')) {
            token.remove_prefix(1);
        }
        digits = takeDigits();
    }
    return digits > 0 && token.empty();
}

/// A number's token; nothing for one that no double holds.
std::optional<std::string> encodeNumber(std::string_view token) {
    const double value = numericValue(token);
    if (!std::isfinite(value)) {
        return std::nullopt;
    }
    constexpr double kIntegerLimit = 32'768;
    const bool isInteger = token.find('.') == std::string_view::npos && std::abs(value) < kIntegerLimit &&
                           std::trunc(value) == value;
    if (isInteger) {
        return static_cast<char>(kTokenInteger) + int16ToBytes(static_cast<int>(value));
    }
    return static_cast<char>(kTokenNumber) + doubleToBytes(value);
}

/// One token of the postfix text; nothing when it has none.
std::optional<std::string> encodeToken(std::string_view token, const CellPosition& cell, WksDialect dialect) {
    if (dialect == WksDialect::Common && token == kParenthesesSymbol) {
        return std::string(1, static_cast<char>(kTokenParentheses));
    }
    const bool quoted = token.front() == '"';
    const bool quotesFirst = dialect == WksDialect::Common && quoted;
    if ((token.find('(') != std::string_view::npos && !quotesFirst) || isBareFunction(token)) {
        return FunctionCode(token, dialect);
    }
    if (quoted) {
        if (token.size() < 2 || token.back() != '"') {
            return std::nullopt;
        }
        std::string bytes(1, static_cast<char>(kTokenString));
        return bytes.append(token.substr(1, token.size() - 2)) + '\0';
    }
    if (isNumber(token)) {
        return encodeNumber(token);
    }
    if (IsCellRef(token)) {
        if (token.find(':') == std::string_view::npos) {
            return static_cast<char>(kTokenReference) + EncodeCellRef(token, cell);
        }
        return static_cast<char>(kTokenRange) + EncodeRange(token, cell);
    }
    if (const auto code = operatorCode(token)) {
        return std::string(1, static_cast<char>(*code));
    }
    return std::nullopt;
}

/// Where the token at the front of a postfix text ends.
std::size_t tokenLength(std::string_view postfix, WksDialect dialect) {
    std::size_t from = 0;
    if (dialect == WksDialect::Common && postfix.front() == '"') {
        from = std::min(postfix.find('"', 1), postfix.size());
    }
    return std::min(postfix.find(' ', from), postfix.size());
}

}  // namespace

std::string EncodeFormula(std::string_view text, const CellPosition& formulaCell, WksDialect dialect) {
    const std::string postfix = InfixToRpn(text, dialect);
    std::string tokens;
    tokens.reserve(postfix.size() * 2);
    for (std::string_view rest = postfix; !rest.empty();) {
        const std::size_t length = tokenLength(rest, dialect);
        if (length > 0) {
            const auto bytes = encodeToken(rest.substr(0, length), formulaCell, dialect);
            if (!bytes) {
                tokens = static_cast<char>(kTokenErr);
                break;
            }
            tokens += *bytes;
        }
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    return tokens + static_cast<char>(kTokenEnd);
}

}  // namespace velmora
