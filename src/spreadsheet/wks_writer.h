// Writing worksheet files (records, see wks_records.h).
#pragma once

#include <string>

#include "spreadsheet/sheet_grid.h"
#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// The bytes of a worksheet file with the cells of a sheet, row by row. Formulas are written with a cached
/// value of 0. RunTimeError 6 for a label or formula that no record can hold (65,535 bytes), 9 for a formula
/// that is too deep, 5 for a call with more than 255 arguments.
std::string writeWks(const SheetGrid& sheet, WksDialect dialect = WksDialect::Own);

}  // namespace velmora
