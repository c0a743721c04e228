#include "spreadsheet/sheet_grid.h"

#include "base/run_time_error.h"

namespace velmora {

SheetGrid::SheetGrid(int rows, int columns) {
    if (rows < 1 || columns < 1) {
        return;
    }
    rows_ = rows;
    columns_ = columns;
    cells_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
}

std::size_t SheetGrid::indexOf(const CellPosition& position) const {
    if (!contains(position)) {
        throw RunTimeError(
            ErrorNumber::SubscriptOutOfRange,
            "row " + std::to_string(position.row) + ", column " + std::to_string(position.column));
    }
    return static_cast<std::size_t>(position.row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(position.column);
}

}  // namespace velmora
