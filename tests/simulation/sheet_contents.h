// What worksheet files hold.
#pragma once

#include <string>
#include <vector>

#include "random.h"

namespace velmora::simulation {

/// One cell; columns and rows from 0.
struct SimulatedCell {
    int column = 0;
    int row = 0;
    int type = 0;  ///< 34 a label, 135 a number or a formula with its "="
    std::string text;
    friend bool operator==(const SimulatedCell&, const SimulatedCell&) = default;
};

/// The worksheet file of a format (2 to 6) into which a new server puts these cells.
std::string sheetFile(const std::vector<SimulatedCell>& cells, int format, bool commonWorksheets);
/// The cells that a new server finds in a worksheet file, row by row.
std::vector<SimulatedCell> cellsOfFile(const std::string& bytes, int format, bool commonWorksheets);
/// The cells as they come back from a worksheet that keeps everything (format 2).
std::vector<SimulatedCell> asReturned(const std::vector<SimulatedCell>& cells);
/// A worksheet file (format 2) with its cells in another order.
std::string shuffled(const std::string& bytes, Random& random);

}  // namespace velmora::simulation
