// The sheet in memory: what a worksheet file and the Organiser's spreadsheet have in common.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace velmora {

/// Limits of the Organiser's spreadsheet: columns A to Z, rows 1 to 99.
constexpr int kSheetColumns = 26;
constexpr int kSheetRows = 99;

/// Longest text that the readers of text files and the formula decoder give to a cell, in characters.
constexpr std::size_t kLongestCellText = 250;

/// A cell holding text. Windows-1252 bytes, without a mark.
struct Label {
    std::string text;
    friend bool operator==(const Label&, const Label&) = default;
};

/// A cell holding a formula in the Organiser's notation, without its "=".
struct Formula {
    std::string text;
    friend bool operator==(const Formula&, const Formula&) = default;
};

/// One cell: empty, a 16-bit whole number, any other number, a label or a formula.
using Cell = std::variant<std::monostate, std::int16_t, double, Label, Formula>;

inline bool isEmpty(const Cell& cell) {
    return std::holds_alternative<std::monostate>(cell);
}
inline bool isNumber(const Cell& cell) {
    return std::holds_alternative<std::int16_t>(cell) || std::holds_alternative<double>(cell);
}

/// Where a cell stands, both counted from 0. Relative references of a formula count from its own cell.
struct CellPosition {
    int row = 0;
    int column = 0;
    friend bool operator==(const CellPosition&, const CellPosition&) = default;
};

/// Whether a position lies within the Organiser's spreadsheet.
inline bool isInSheet(const CellPosition& at) {
    return at.row >= 0 && at.row < kSheetRows && at.column >= 0 && at.column < kSheetColumns;
}

/// A table of cells. One without rows or columns means that there is no sheet.
class SheetGrid {
  public:
    SheetGrid() = default;
    /// A sheet of empty cells; there is none when either number is below 1.
    SheetGrid(int rows, int columns);

    bool exists() const { return rows_ > 0; }
    int rows() const { return rows_; }
    int columns() const { return columns_; }
    bool contains(const CellPosition& at) const {
        return at.row >= 0 && at.row < rows_ && at.column >= 0 && at.column < columns_;
    }

    /// The cell at a position; RunTimeError 9 outside the sheet.
    Cell& at(const CellPosition& position) { return cells_[indexOf(position)]; }
    const Cell& at(const CellPosition& position) const { return cells_[indexOf(position)]; }

    friend bool operator==(const SheetGrid&, const SheetGrid&) = default;

  private:
    std::size_t indexOf(const CellPosition& position) const;

    int rows_ = 0;
    int columns_ = 0;
    std::vector<Cell> cells_;
};

}  // namespace velmora
