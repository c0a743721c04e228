// The settings that the services read at the moment of use.
#pragma once

#include <cstdint>
#include <string>

#include "spreadsheet/spreadsheet_settings.h"

namespace velmora {

/// Shared by start-up, the window (which may change the folder, the type and the worksheets' dialect at any
/// time) and the services.
struct TransferSettings {
    std::string DownloadPath;       ///< existing folder, in the system's encoding, without a final separator
    std::int32_t DataFileType = 0;  ///< 0 ODB, 1 TXT, 2 CSV with commas, 3 CSV with semicolons
    bool StayInFolder = false;      ///< whether names that lead outside DownloadPath are refused
    SpreadsheetSettings sheets{};
};

}  // namespace velmora
