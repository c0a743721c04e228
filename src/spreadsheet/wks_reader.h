// Reading worksheet files (records, see wks_records.h).
#pragma once

#include "base/files.h"
#include "spreadsheet/left_out.h"
#include "spreadsheet/sheet_grid.h"
#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// The sheet in a worksheet file, read from the file's position to its end, up to the largest row and column
/// that hold a cell; one empty cell when none does. Cells beyond 26 columns or 99 rows, records of other
/// types and bodies too short for their type are left out; a record that is cut short ends the reading. Any
/// bytes are safe to read. Throws what the file throws, and SheetError 9 for a formula that is too deep.
SheetGrid readWks(File& file, WksDialect dialect = WksDialect::Own, LeftOut* leftOut = nullptr);

}  // namespace velmora
