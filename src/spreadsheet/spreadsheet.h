// The entry points of the spreadsheet: sheets to files and back.
#pragma once

#include <cstdint>
#include <string>

#include "base/files.h"
#include "base/path_rules.h"
#include "spreadsheet/formula_check.h"
#include "spreadsheet/left_out.h"
#include "spreadsheet/sheet_format.h"
#include "spreadsheet/sheet_grid.h"
#include "spreadsheet/spreadsheet_settings.h"

namespace velmora {

/// The bytes of a sheet in one of the formats 2 to 6; empty for any other. `remark` (which may be missing)
/// hears of the formulas that will not come back as they are; SheetError for one that cannot be saved
/// (formula_check.h), RunTimeError for a cell that no file can hold (wks_writer.h).
std::string sheetBytes(const SheetGrid& sheet, int format, const SpreadsheetSettings& settings,
                       const CellRemark& remark = {});

/// Longest file that is read, in bytes.
constexpr std::uint64_t kLargestSheetFile = 64 * 1024 * 1024;

/// The sheet in a file of one of the formats 2 to 6; none for any other. What the reader leaves out is
/// counted for a caller that asks. Throws what the readers throw, and SheetError 7 for a file above
/// kLargestSheetFile.
SheetGrid sheetFromFile(File& file, int format, const SpreadsheetSettings& settings,
                        LeftOut* leftOut = nullptr);

/// Holds references only; files, rules and settings must outlive it.
class Spreadsheet {
  public:
    Spreadsheet(Files& files, const PathRules& rules, const SpreadsheetSettings& settings)
        : files_(files), rules_(rules), settings_(settings) {}

    /// Writes a sheet to a file, whole or not at all: an old file stays until the new one is complete.
    /// Returns 0 or the number of the run-time error. A format other than 2 to 6 is 0 and writes nothing.
    /// `remark` (which may be missing) hears of the cells that will not come back as they are or that are to
    /// blame for the error.
    int ExportSheet(const SheetGrid& sheet, const std::string& fileName, int format,
                    const CellRemark& remark = {});

    /// Reads a file into the sheet, replacing it. Returns 0 or the number of the run-time error, and leaves
    /// the sheet as it was then, as it does for a format other than 2 to 6 (0). `remark` (which may be
    /// missing) hears what in the file is to blame.
    int ImportSheet(SheetGrid& sheet, const std::string& fileName, int format, const CellRemark& remark = {});

    /// Throws the RunTimeError that writing there would meet, 75 where no file can be. Changes nothing: an
    /// existing file keeps its content, a missing one stays missing.
    void checkWritable(const std::string& fileName);

  private:
    Files& files_;
    const PathRules& rules_;
    const SpreadsheetSettings& settings_;
};

}  // namespace velmora
