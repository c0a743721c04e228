// velmora-files sheet: worksheets between the formats.
#pragma once

#include <optional>
#include <string>

#include "files/file_access.h"
#include "spreadsheet/left_out.h"
#include "spreadsheet/number_locale.h"
#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// What is to be converted, and how. Formats are the codes of the spreadsheet layer; without one it is told
/// by the name's extension.
struct SheetRequest {
    std::string in;
    std::string out;
    std::optional<int> from;
    std::optional<int> to;
    NumberLocale locale;
    std::optional<std::string> separator;  ///< of the fields that are read; empty to find it from the lines
    WksDialect fromDialect = WksDialect::Own;
    WksDialect toDialect = WksDialect::Own;
    TextEncoding encoding = TextEncoding::Windows1252;  ///< of all formats but WKS
};

/// Converts a worksheet. Tells of what does not fit into a sheet, and of formulas that a WKS file changes.
/// UsageError when a name tells no format, RunTimeError.
void runSheetCommand(const SheetRequest& request, const FileAccess& access);

/// Tells of what a reader left out of a sheet.
void tellLeftOut(const LeftOut& leftOut, const Tell& tell);

/// The format of a name's extension (wks, wk1, dif, csv, txt, tab, tsv); 0 when it is none of them.
int sheetFormatOf(const std::string& extension);

}  // namespace velmora
