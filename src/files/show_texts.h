// The texts that files are shown as, in the system's encoding.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "spreadsheet/sheet_grid.h"

namespace velmora {

/// Windows-1252 bytes as they may go to a terminal: in the system's encoding, "." for control codes.
std::string printable(std::string_view windows1252);

/// A table with the letters of the columns above and the numbers of the rows in front; formulas with "=",
/// numbers at the right of their column.
void printSheet(const SheetGrid& sheet, std::ostream& out);

/// Records numbered from 1, " | " between their fields.
void printRecords(const std::vector<std::string>& records, std::ostream& out);

/// The header of a block file and the first bytes of its data; whether its length is that of the file.
bool printBlockFile(std::string_view bytes, std::ostream& out);

/// The header that the Organiser is sent for a procedure and its lines. RunTimeError 6 when it is too long.
void printProcedure(const std::string& text, std::ostream& out);

}  // namespace velmora
