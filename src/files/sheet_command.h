// velmora-files sheet: worksheets between the formats.
#pragma once

#include <string>
#include <vector>

#include "files/file_access.h"
#include "spreadsheet/sheet_grid.h"

namespace velmora {

constexpr const char* kSheetUsage =
    "velmora-files sheet IN OUT [--from FORMAT] [--to FORMAT] [--locale NAME] [--separator SIGN]\n"
    "                    [--wks-dialect own|common] [--from-dialect own|common] [--to-dialect own|common]";

/// Converts a worksheet. `arguments`: what follows the command's name. Formats are "wks", "dif", "csv", "txt"
/// and "tab", taken from the extensions where they are not given. UsageError, RunTimeError.
void runSheetCommand(const std::vector<std::string>& arguments, const FileAccess& access);

/// The format of a name's extension (wks, wk1, dif, csv, txt, tab, tsv); 0 when it is none of them.
int sheetFormatOf(const std::string& extension);

}  // namespace velmora
