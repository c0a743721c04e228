// Any bytes as a file of cells: they are refused with a sentence, or fit messages and come back as they are.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "organiser/cells_file.h"
#include "organiser/conversation.h"
#include "organiser/local_files.h"
#include "require.h"

namespace {

using namespace velmora;
using fuzz::require;

void checkCells(const std::vector<SheetCell>& cells) {
    require(!cells.empty());
    for (const SheetCell& cell : cells) {
        require(cell.column >= 0 && cell.column < kSheetColumns && cell.row >= 0 && cell.row < kSheetRows);
        require(cell.type == SheetCell::kLabel || cell.type == SheetCell::kNumberOrFormula);
        require(cell.text.size() + 3 <= kMostData);
    }
    // Numbers are written plainly; from then on nothing changes.
    const std::string written = joinLines(cellLines(cells), true);
    const std::vector<SheetCell> again = parseCells("again", written);
    require(again.size() == cells.size());
    require(joinLines(cellLines(again), true) == written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::vector<SheetCell> cells;
    try {
        cells = parseCells("cells", text);
    } catch (const LocalFileError& error) {
        require(std::string_view(error.what()).substr(0, 5) == "cells");
        return 0;
    }
    checkCells(cells);
    return 0;
}
