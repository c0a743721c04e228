// What does not fit into a sheet.
#pragma once

#include <cstddef>

namespace velmora {

/// What a reader left out of the sheet that it made of a file.
struct LeftOut {
    std::size_t rows = 0;  ///< lines of a text file below row 99 that hold something
    std::size_t columns =
        0;                  ///< most columns of a line to the right of Z, up to the last that holds something
    std::size_t cells = 0;  ///< cells of a WKS or DIF file outside the sheet
    std::size_t texts = 0;  ///< texts that were cut to kLongestCellText
    bool end = false;       ///< the file ends before its format says that it does
};

}  // namespace velmora
