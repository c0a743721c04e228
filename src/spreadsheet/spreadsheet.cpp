#include "spreadsheet/spreadsheet.h"

#include <memory>

#include "base/run_time_error.h"
#include "spreadsheet/dif_reader.h"
#include "spreadsheet/dif_writer.h"
#include "spreadsheet/sheet_error.h"
#include "spreadsheet/text_reader.h"
#include "spreadsheet/text_writer.h"
#include "spreadsheet/whole_file.h"
#include "spreadsheet/wks_reader.h"
#include "spreadsheet/wks_writer.h"

namespace velmora {
namespace {

bool hasFiles(int format) {
    return format >= kFormatWks && format <= kFormatTab;
}

/// Runs a file operation; 0 or the number of the run-time error that ended it. `remark` hears of an error
/// that comes of the sheet.
template <typename Operation>
int errorOf(const CellRemark& remark, Operation operation) {
    try {
        operation();
        return 0;
    } catch (const SheetError& error) {
        if (remark) {
            remark(error.line());
        }
        return error.number();
    } catch (const RunTimeError& error) {
        return error.number();
    }
}

}  // namespace

std::string sheetBytes(const SheetGrid& sheet, int format, const SpreadsheetSettings& settings,
                       const CellRemark& remark) {
    switch (format) {
        case kFormatWks:
            checkFormulas(sheet, settings.wksDialect, remark);
            return writeWks(sheet, settings.wksDialect);
        case kFormatDif:
            return writeDif(sheet);
        case kFormatCsv:
            return writeCsv(sheet, settings.locale);
        case kFormatTxt:
            return writeFixedText(sheet, settings.locale);
        case kFormatTab:
            return writeTabText(sheet, settings.locale);
        default:
            return {};
    }
}

SheetGrid sheetFromFile(File& file, int format, const SpreadsheetSettings& settings, LeftOut* leftOut) {
    if (file.size() > kLargestSheetFile) {
        throw SheetError(ErrorNumber::OutOfMemory, "the file is larger than 64 MB");
    }
    switch (format) {
        case kFormatWks:
            return readWks(file, settings.wksDialect, leftOut);
        case kFormatDif:
            return readDif(file, leftOut);
        case kFormatCsv:
            return readDelimited(file, ";", settings.locale, leftOut);
        case kFormatTxt:
            return readFixedText(file, settings.locale, leftOut);
        case kFormatTab:
            return readDelimited(file, "\t", settings.locale, leftOut);
        default:
            return {};
    }
}

int Spreadsheet::ExportSheet(const SheetGrid& sheet, const std::string& fileName, int format,
                             const CellRemark& remark) {
    if (!hasFiles(format)) {
        return 0;
    }
    return errorOf(remark, [&] {
        writeWholeFile(files_, rules_, fileName, sheetBytes(sheet, format, settings_, remark));
    });
}

int Spreadsheet::ImportSheet(SheetGrid& sheet, const std::string& fileName, int format,
                             const CellRemark& remark) {
    if (!hasFiles(format)) {
        return 0;
    }
    return errorOf(remark, [&] {
        if (fileName.empty()) {
            throw RunTimeError(ErrorNumber::BadFileName);
        }
        const std::unique_ptr<File> file = files_.open(fileName, OpenMode::Read);
        SheetGrid read = sheetFromFile(*file, format, settings_);
        file->close();
        sheet = std::move(read);
    });
}

void Spreadsheet::checkWritable(const std::string& fileName) {
    velmora::checkWritable(files_, rules_, fileName);
}

}  // namespace velmora
