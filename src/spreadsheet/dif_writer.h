// Writing DIF files (Data Interchange Format).
#pragma once

#include <string>

#include "spreadsheet/sheet_grid.h"

namespace velmora {

/// The bytes of a DIF file with the cells of a sheet. Formulas are written as texts. A number that is not
/// finite is written with the indicator ERROR.
std::string writeDif(const SheetGrid& sheet);

}  // namespace velmora
