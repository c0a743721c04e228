#include "spreadsheet/formula_check.h"

#include <array>
#include <charconv>
#include <optional>
#include <variant>
#include <vector>

#include "base/byte_text.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "spreadsheet/cell_reference.h"
#include "spreadsheet/formula_decoder.h"
#include "spreadsheet/formula_encoder.h"
#include "spreadsheet/formula_tables.h"
#include "spreadsheet/infix_to_rpn.h"
#include "spreadsheet/postfix_tokens.h"
#include "spreadsheet/sheet_error.h"

namespace velmora {
namespace {

/// A token in a form in which equal ones are the same text.
std::string normalised(std::string_view token) {
    constexpr std::string_view kNoArguments = "(0)";
    if (token.starts_with('"')) {
        return std::string(token);
    }
    if (isNumberToken(token)) {
        std::array<char, 32> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), numericValue(token));
        return {digits.data(), end.ptr};
    }
    if (token.ends_with(kNoArguments)) {
        token.remove_suffix(kNoArguments.size());
    }
    return upperCase(token);
}

/// What a formula says, in the order in which it is computed. The common dialect reads a text as people do:
/// from the left where ranks are equal, with calls inside calls.
std::vector<std::string> meaningOf(std::string_view text) {
    constexpr WksDialect kAsPeopleRead = WksDialect::Common;
    const std::string postfix = InfixToRpn(text, kAsPeopleRead);
    std::vector<std::string> meaning;
    for (std::string_view rest = postfix; !rest.empty();) {
        const std::string_view token = takePostfixToken(rest, kAsPeopleRead);
        if (token != kParenthesesSymbol) {
            meaning.push_back(normalised(token));
        }
    }
    return meaning;
}

bool saysTheSame(std::string_view one, std::string_view other) {
    try {
        return meaningOf(one) == meaningOf(other);
    } catch (const RunTimeError&) {
        return false;  // too deep to be compared
    }
}

/// The text that comes back from a worksheet.
std::string returned(std::string_view text, const CellPosition& cell, WksDialect dialect) {
    const std::string tokens = EncodeFormula(text, cell, dialect);
    constexpr std::size_t kEndAlone = 1;
    if (tokens.size() == kEndAlone && !trimBlanks(text).empty()) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "it cannot be converted");
    }
    return DecodeFormula(tokens, cell, dialect);
}

/// As returned(); nothing when there is no way back.
std::optional<std::string> returnedAgain(std::string_view text, const CellPosition& cell,
                                         WksDialect dialect) {
    try {
        return returned(text, cell, dialect);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

}  // namespace

std::string formulaChange(std::string_view text, const CellPosition& formulaCell, WksDialect dialect) {
    const std::string back = returned(text, formulaCell, dialect);
    if (back == text) {
        return {};
    }
    std::string change = "=" + std::string(text) + " comes back as =" + back;
    if (!saysTheSame(text, back)) {
        return change;
    }
    const std::optional<std::string> again = returnedAgain(back, formulaCell, dialect);
    if (!again) {
        return change + ", which cannot be saved";
    }
    return saysTheSame(text, *again) ? std::string() : change + ", and saved again, as =" + *again;
}

void checkFormulas(const SheetGrid& sheet, WksDialect dialect, const CellRemark& remark) {
    const auto tell = [&](const std::string& line) {
        if (remark) {
            remark(line);
        }
    };
    std::optional<SheetError> failure;
    for (int row = 0; row < sheet.rows(); ++row) {
        for (int column = 0; column < sheet.columns(); ++column) {
            const CellPosition at{row, column};
            const auto* const formula = std::get_if<Formula>(&sheet.at(at));
            if (formula == nullptr) {
                continue;
            }
            const std::string name = cellName(at) + ": ";
            try {
                const std::string change = formulaChange(formula->text, at, dialect);
                if (!change.empty()) {
                    tell(name + change);
                }
            } catch (const RunTimeError& error) {
                const std::string line = name + "=" + formula->text + " cannot be saved: " + error.what();
                if (failure) {
                    tell(line);
                } else {
                    failure.emplace(error.errorNumber(), line);
                }
            }
        }
    }
    if (failure) {
        throw SheetError(*failure);
    }
}

}  // namespace velmora
