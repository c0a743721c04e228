#include "spreadsheet/formula_encoder.h"

#include <cmath>
#include <optional>

#include "base/number_text.h"
#include "spreadsheet/byte_conversions.h"
#include "spreadsheet/cell_reference.h"
#include "spreadsheet/formula_tables.h"
#include "spreadsheet/infix_to_rpn.h"
#include "spreadsheet/postfix_tokens.h"

namespace velmora {
namespace {

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
    const bool quoted = token.starts_with('"');
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
    if (isNumberToken(token)) {
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

}  // namespace

std::string EncodeFormula(std::string_view text, const CellPosition& formulaCell, WksDialect dialect) {
    const std::string postfix = InfixToRpn(text, dialect);
    std::string tokens;
    tokens.reserve(postfix.size() * 2);
    for (std::string_view rest = postfix; !rest.empty();) {
        const std::string_view token = takePostfixToken(rest, dialect);
        if (token.empty()) {
            continue;  // blanks in a row, inside a text
        }
        const auto bytes = encodeToken(token, formulaCell, dialect);
        if (!bytes) {
            tokens = static_cast<char>(kTokenErr);
            break;
        }
        tokens += *bytes;
    }
    return tokens + static_cast<char>(kTokenEnd);
}

}  // namespace velmora
