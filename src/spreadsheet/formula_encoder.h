// From the text of a formula to its tokens.
#pragma once

#include <string>
#include <string_view>

#include "spreadsheet/sheet_grid.h"
#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// The tokens of a formula (without "="), ending with the end token. A text that cannot be converted gives
/// the end token alone, one with an unknown operand the function ERR; an unknown function inside it is ERR
/// in its place. A text in quotes that holds a blank or "(" is lost in the system's own dialect, which cuts
/// its postfix text at every blank.
/// `formulaCell`: where the formula stands; references without "$" are written relative to it.
/// RunTimeError 9 for a formula that is too deep, 5 for a call with more than 255 arguments.
std::string EncodeFormula(std::string_view text, const CellPosition& formulaCell,
                          WksDialect dialect = WksDialect::Own);

}  // namespace velmora
