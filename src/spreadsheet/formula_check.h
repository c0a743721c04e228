// What a worksheet makes of the formulas that are saved in it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "spreadsheet/sheet_grid.h"
#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// Takes a line about one cell, Windows-1252: "B3: =A1-(B1-C1) comes back as =A1-B1-C1".
using CellRemark = std::function<void(const std::string& line)>;

/// Says how a formula (without "=") comes back from a worksheet: "=A1-(B1-C1) comes back as =A1-B1-C1". Empty
/// when what comes back says the same, though perhaps in other letters or with fewer parentheses, and still
/// does when it is saved and fetched a second time. RunTimeError 5 for a text that cannot be converted at
/// all, 9 for one that is too deep to be saved or, once saved, to be fetched. `formulaCell`: where the
/// formula stands.
std::string formulaChange(std::string_view text, const CellPosition& formulaCell, WksDialect dialect);

/// Looks through the formulas of a sheet that is to become a worksheet. `remark` (which may be missing) hears
/// of each one that will not come back as it is. SheetError for the first that cannot be saved, or never
/// fetched again; `remark` hears of the others.
void checkFormulas(const SheetGrid& sheet, WksDialect dialect, const CellRemark& remark);

}  // namespace velmora
