// Writing sheets as text: comma-separated, tab-separated, in columns of fixed width.
#pragma once

#include <string>

#include "spreadsheet/number_locale.h"
#include "spreadsheet/sheet_grid.h"

namespace velmora {

/// Every cell in double quotes and followed by ",", the last of a row too. Quotes in a text stay as they are.
std::string writeCsv(const SheetGrid& sheet, const NumberLocale& locale = {});

/// Every cell followed by a tab.
std::string writeTabText(const SheetGrid& sheet, const NumberLocale& locale = {});

/// Every column as wide as its longest text and one more: numbers at its left edge, all else at its right.
std::string writeFixedText(const SheetGrid& sheet, const NumberLocale& locale = {});

/// The text of a cell in these files: a number with the locale's decimal sign, the bare text of a label or
/// formula.
std::string cellText(const Cell& cell, const NumberLocale& locale = {});

}  // namespace velmora
