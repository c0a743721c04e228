// Names for the files of the tour.
#pragma once

#include <string>
#include <vector>

namespace velmora {

/// The names under which a tour saves, as the server is told them.
struct TourNames {
    std::string base;   ///< of the data file, the procedure, the block file and the spreadsheet
    std::string text;   ///< of the text file
    std::string bytes;  ///< of the file that is written byte by byte
};

/// TOUR, TOUR2, TOUR3 …: the first that no name of the listed ones has, whatever its extension and its case.
TourNames freeTourNames(const std::vector<std::string>& listed);

}  // namespace velmora
