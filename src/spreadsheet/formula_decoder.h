// From the tokens of a worksheet formula to its text.
#pragma once

#include <string>
#include <string_view>

#include "spreadsheet/sheet_grid.h"
#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// The text of a formula, without "=", in the Organiser's notation: at most 250 characters. "ERR" when it
/// would be longer, when a token is unknown or cut short, or when a string has no zero byte. Empty when the
/// tokens hold nothing or a text that no formula can hold. Bytes behind the end token are ignored.
/// `formulaCell`: where the formula stands; relative references count from it.
/// RunTimeError 9 when more than 101 operands wait at once.
std::string DecodeFormula(std::string_view tokens, const CellPosition& formulaCell,
                          WksDialect dialect = WksDialect::Own);

}  // namespace velmora
