// What the menu of worksheet formats offers.
#pragma once

#include <vector>

#include "services/planm_service.h"

namespace velmora {

/// The formats into which spreadsheets are converted, by number, with their long names: 2 to 6, and 1 in
/// front if it were available.
std::vector<SheetFormatEntry> offeredFormats();

}  // namespace velmora
