#include "spreadsheet/formula_decoder.h"

#include <optional>

#include "spreadsheet/byte_conversions.h"
#include "spreadsheet/cell_reference.h"
#include "spreadsheet/formula_tables.h"
#include "spreadsheet/rpn_to_infix.h"
#include "spreadsheet/sheet_number_text.h"

namespace velmora {
namespace {

constexpr const char* kErrorText = "ERR";

/// The first pass: tokens to a postfix text.
class TokenReader {
  public:
    TokenReader(std::string_view tokens, const CellPosition& formulaCell, WksDialect dialect)
        : rest_(tokens), cell_(formulaCell), dialect_(dialect) {}

    /// The postfix text; nothing when a token is unknown or cut short.
    std::optional<std::string> postfix() {
        std::string out;
        while (!rest_.empty()) {
            const int code = static_cast<unsigned char>(rest_.front());
            rest_.remove_prefix(1);
            if (code == kTokenEnd) {
                break;
            }
            const std::optional<std::string> token = readToken(code);
            if (!token) {
                return std::nullopt;
            }
            out.append(*token).append(" ");
        }
        return out;
    }

  private:
    /// What a token is in the postfix text; nothing when it is unknown or cut short.
    std::optional<std::string> readToken(int code) {
        if (code >= kFirstOperator && code <= kLastOperator) {
            return std::string(operatorSymbol(code));
        }
        if (isFunctionCode(code)) {
            return readFunction(code);
        }
        switch (code) {
            case kTokenNumber:
                return readNumber();
            case kTokenReference:
                return readReference();
            case kTokenRange:
                return readRange();
            case kTokenInteger:
                return readInteger();
            case kTokenString:
                return readString();
            case kTokenParentheses:
                return dialect_ == WksDialect::Common ? std::optional<std::string>(kParenthesesSymbol)
                                                      : std::nullopt;
            default:
                return std::nullopt;
        }
    }

    /// The next bytes of a token; nothing when they are not all there.
    std::optional<std::string_view> take(std::size_t count) {
        if (rest_.size() < count) {
            return std::nullopt;
        }
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }

    std::optional<std::string> readNumber() {
        const auto bytes = take(sizeof(double));
        if (!bytes) {
            return std::nullopt;
        }
        const std::string text = exponentText(bytesToDouble(*bytes));
        return text.front() == '-' ? negated(text.substr(1)) : text;
    }

    std::optional<std::string> readInteger() {
        const auto bytes = take(2);
        if (!bytes) {
            return std::nullopt;
        }
        const int value = bytesToInt16(*bytes);
        return value < 0 ? negated(std::to_string(-value)) : std::to_string(value);
    }

    static std::string negated(const std::string& number) { return number + " _"; }

    std::optional<std::string> readReference() {
        const auto bytes = take(4);
        return bytes ? std::optional(DecodeCellRef(*bytes, cell_)) : std::nullopt;
    }

    std::optional<std::string> readRange() {
        const auto bytes = take(8);
        if (!bytes) {
            return std::nullopt;
        }
        return DecodeCellRef(*bytes, cell_) + ":" + DecodeCellRef(bytes->substr(4), cell_);
    }

    std::optional<std::string> readString() {
        const std::size_t end = rest_.find('\0');
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        std::string text(rest_.substr(0, end));
        rest_.remove_prefix(end + 1);
        if (dialect_ == WksDialect::Common && text.find('"') == std::string::npos) {
            return "\"" + text + "\"";
        }
        return text;
    }

    std::optional<std::string> readFunction(int code) {
        int count = 0;
        if (readsArgumentCount(code, dialect_)) {
            const auto byte = take(1);
            if (!byte) {
                return std::nullopt;
            }
            count = static_cast<unsigned char>(byte->front());
        }
        return FunctionName(code, count, dialect_);
    }

    std::string_view rest_;
    CellPosition cell_;
    WksDialect dialect_;
};

/// Replaces every occurrence, from left to right, without looking at what it put in.
void replaceAll(std::string& text, std::string_view find, std::string_view replacement) {
    std::size_t next = text.find(find);
    if (next == std::string::npos) {
        return;
    }
    std::string out;
    std::size_t copied = 0;
    for (; next != std::string::npos; next = text.find(find, copied)) {
        out.append(text, copied, next - copied).append(replacement);
        copied = next + find.size();
    }
    text = out.append(text, copied);
}

}  // namespace

std::string DecodeFormula(std::string_view tokens, const CellPosition& formulaCell, WksDialect dialect) {
    const auto postfix = TokenReader(tokens, formulaCell, dialect).postfix();
    if (!postfix) {
        return kErrorText;
    }
    std::string infix = RpnToInfix(*postfix, dialect);
    // The Organiser's notation, in this order: the later ones see what the earlier ones left.
    replaceAll(infix, "()", "");
    replaceAll(infix, "^", "**");
    replaceAll(infix, "&", " AND ");
    replaceAll(infix, "|", " OR ");
    replaceAll(infix, "!", " NOT ");
    replaceAll(infix, "INT(TODAY)", "TODAY");
    return infix.size() > kLongestCellText ? kErrorText : infix;
}

}  // namespace velmora
