// Cells as they go over the line.
#pragma once

#include <string>
#include <string_view>

#include "spreadsheet/sheet_grid.h"

namespace velmora {

constexpr int kCellLabel = 34;
constexpr int kCellValue = 135;  ///< a number, or a formula beginning with "="

/// A cell's type and text. Doubles are in exponent form (spreadsheet/sheet_number_text.h), infinities and NaN
/// the formula ERR. An empty cell, of which none is sent, is a value without a text.
struct CellMessage {
    int type = kCellValue;
    std::string text;
    friend bool operator==(const CellMessage&, const CellMessage&) = default;
};
CellMessage cellMessage(const Cell& cell);

/// The number in a text: 16-bit when it has no ".", is whole and below 32,768, a double otherwise. The
/// numeric value of a text that is no number is 0.
Cell numberCell(std::string_view text);

}  // namespace velmora
