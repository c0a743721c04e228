// Reading sheets from text: separated fields, columns of fixed width. Both read the first 99 lines and keep
// the first 26 columns; they read on to the end only to count what they leave out, for a caller that asks.
// A file without lines gives no sheet. Any bytes are safe to read. They throw what the file throws.
#pragma once

#include <string>
#include <string_view>

#include "base/files.h"
#include "spreadsheet/left_out.h"
#include "spreadsheet/number_locale.h"
#include "spreadsheet/sheet_grid.h"

namespace velmora {

/// A sheet from lines split at every `separator`, quotes or not. An empty separator is found from the first
/// line that shows one (detectSeparator).
SheetGrid readDelimited(File& file, std::string separator, const NumberLocale& locale = {},
                        LeftOut* leftOut = nullptr);

/// A sheet from lines whose columns are told by the blanks: a column begins where, after a position at which
/// every line has a blank, one has none.
SheetGrid readFixedText(File& file, const NumberLocale& locale = {}, LeftOut* leftOut = nullptr);

/// The separator that a line shows: behind a quoted first field the next character that is no blank,
/// otherwise the first ";" or ",". Empty when it shows none.
std::string detectSeparator(std::string_view line);

/// The cell for a field: a number when the field is one as a whole (localeNumber), 16-bit when it is whole
/// and below 32,768, otherwise a label of its first 250 characters. Blanks around it do not count, nor does
/// one pair of double quotes. An empty field is an empty label.
Cell fieldCell(std::string_view field, const NumberLocale& locale);

}  // namespace velmora
