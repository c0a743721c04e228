// Spreadsheets as text files on the side of the Organiser: one cell a line.
//
//   # a comment
//   A1 =B1*2
//   B1 3.5
//   C1 'a label
//
// A reference (A1 to Z99), blanks or tabs, then the content up to the end of the line: a formula behind "=",
// a label behind "'", otherwise a number with "." and an optional exponent. Empty lines and lines that begin
// with
// "#" mean nothing. Bytes above 127 are passed on as they are.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "organiser/sheet_client.h"

namespace velmora {

/// The cells of a cells file in the order of its lines. Throws LocalFileError that names `path` and the line:
/// a reference outside the sheet or used twice, content that is none of the three, a text that no message
/// holds, no cell at all.
std::vector<SheetCell> parseCells(const std::string& path, std::string_view text);

/// The cells as lines of a cells file. Numbers are written plainly: the server's 3.5E0 is 3.5. One that is
/// too large for that is written as it came.
std::vector<std::string> cellLines(const std::vector<SheetCell>& cells);

}  // namespace velmora
