// References to cells as texts ("B3", "$A$1", "A1:B2") and as the words of a worksheet formula.
//
// A word holds a column or row counted from 0, or, with bit 15 set, an offset from the formula's own cell.
// Negative offsets are written with bit 14 clear and bits 13 to 8 set: -1 is 0xBFFF.
#pragma once

#include <string>
#include <string_view>

#include "spreadsheet/sheet_grid.h"

namespace velmora {

/// The reference in four bytes, column word then row word: "$" before what is absolute. "ERR" when it lies
/// beyond column Z or row 99. A relative column left of A comes out as the byte before "A" (or, further left,
/// whichever byte is that far from it; "ERR" when there is none), a row above the first as a number below 1.
/// Requires: at least four bytes.
std::string DecodeCellRef(std::string_view bytes, const CellPosition& formulaCell);

/// The four bytes of a reference. Requires: IsCellRef without a ":".
std::string EncodeCellRef(std::string_view text, const CellPosition& formulaCell);
/// The eight bytes of a range. Requires: IsCellRef with a ":".
std::string EncodeRange(std::string_view text, const CellPosition& formulaCell);

/// A cell as people call it: "B3", beyond the sheet "AA100".
std::string cellName(const CellPosition& at);

/// Whether a text is a reference or a range: an optional "$", one letter in either case, an optional "$" and
/// the digits of a row up to 32,768; two of these with ":" between them.
bool IsCellRef(std::string_view text);

}  // namespace velmora
