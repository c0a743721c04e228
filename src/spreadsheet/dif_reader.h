// Reading DIF files (Data Interchange Format, the text form of VisiCalc's tables).
#pragma once

#include "base/files.h"
#include "spreadsheet/left_out.h"
#include "spreadsheet/sheet_grid.h"

namespace velmora {

/// The sheet in a DIF file. Its size is what the header announces, at most 99 rows and 26 columns; there is
/// no sheet when it announces none. Numbers are doubles, other indicators than "V" formulas ("NA", and "ERR"
/// for "ERROR"). An item that holds no text, or a text without its quotes, stores nothing and takes no
/// column. What lies outside the size is left out, and counted for a caller that asks. Any bytes are safe to
/// read. Throws what the file throws.
SheetGrid readDif(File& file, LeftOut* leftOut = nullptr);

}  // namespace velmora
