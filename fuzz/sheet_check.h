// What holds for every sheet that a reader gives.
#pragma once

#include "base/run_time_error.h"
#include "require.h"
#include "spreadsheet/sample_file.h"
#include "spreadsheet/sheet_grid.h"
#include "spreadsheet/spreadsheet.h"

namespace velmora::fuzz {

/// Reads bytes and checks the sheet: within the Organiser's size, and fit to be written in every format.
template <typename Reader>
void checkReader(const std::string& bytes, Reader reader) {
    try {
        const SheetGrid sheet = test::readSample(bytes, reader);
        require(sheet.rows() <= kSheetRows && sheet.columns() <= kSheetColumns);
        for (int format = kFormatWks; format <= kFormatTab; ++format) {
            sheetBytes(sheet, format, {});
        }
    } catch (const RunTimeError&) {
        // The one way in which a reader or writer may fail.
    }
}

}  // namespace velmora::fuzz
