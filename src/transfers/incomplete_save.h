// Saves that ended without the Organiser's word that they are complete.
#pragma once

#include <cstdint>
#include <string>

#include "base/path_rules.h"

namespace velmora {

/// What is left of such a save. Paths are in the system's encoding.
struct IncompleteSave {
    std::string path;         ///< the file
    std::uint64_t bytes = 0;  ///< that arrived, as the statistics count them
    std::string earlierCopy;  ///< of the file that it replaced; empty when there is none
    bool written = true;      ///< false: nothing was written yet, and a file that was there is as it was
};

/// The save as one line of Windows-1252: "Memo.odb is incomplete: 1,234 bytes arrived. Earlier copy: PATH",
/// or "Plan.wks was not saved: 1,234 bytes arrived."
std::string describe(const IncompleteSave& save, const PathRules& rules);

}  // namespace velmora
