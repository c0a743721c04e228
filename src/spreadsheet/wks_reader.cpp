#include "spreadsheet/wks_reader.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "spreadsheet/byte_conversions.h"
#include "spreadsheet/byte_reader.h"
#include "spreadsheet/cell_reference.h"
#include "spreadsheet/formula_decoder.h"
#include "spreadsheet/sheet_error.h"
#include "spreadsheet/wks_records.h"

namespace velmora {
namespace {

/// The fixed part of a cell's record; kLongestBody + 1 for a record that is no cell.
constexpr std::size_t shortestBody(int type) {
    switch (type) {
        case kRecordInteger:
            return kIntegerBody;
        case kRecordNumber:
            return kNumberBody;
        case kRecordLabel:
            return kLabelFrame;
        case kRecordFormula:
            return kFormulaFrame;
        default:
            return kLongestBody + 1;
    }
}

/// The formula in a body; SheetError for one that is too deep.
Formula readFormula(std::string_view body, const CellPosition& at, WksDialect dialect) {
    try {
        return {DecodeFormula(body.substr(kFormulaFrame), at, dialect)};
    } catch (const RunTimeError& error) {
        throw SheetError(error.errorNumber(), cellName(at) + ": its formula cannot be read: " + error.what());
    }
}

/// What the body of a cell's record holds. The format byte, a label's prefix, and the cached value and token
/// length of a formula count for nothing.
Cell readCell(int type, std::string_view body, const CellPosition& at, WksDialect dialect) {
    const std::string_view content = body.substr(kCellHeader);
    switch (type) {
        case kRecordInteger:
            return bytesToInt16(content);
        case kRecordNumber:
            return bytesToDouble(content);
        case kRecordLabel:
            return Label{std::string(content.substr(1, body.size() - kLabelFrame))};
        default:
            return readFormula(body, at, dialect);
    }
}

SheetGrid copyOf(SheetGrid& full, int rows, int columns) {
    SheetGrid sheet(rows, columns);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            sheet.at({row, column}) = std::move(full.at({row, column}));
        }
    }
    return sheet;
}

}  // namespace

SheetGrid readWks(File& file, WksDialect dialect, LeftOut* leftOut) {
    LeftOut uncounted;
    LeftOut& counted = leftOut != nullptr ? *leftOut : uncounted;
    counted.end = true;
    SheetGrid full(kSheetRows, kSheetColumns);
    CellPosition last;
    ByteReader reader(file);
    for (;;) {
        const std::string_view header = reader.read(kRecordHeader);
        if (header.size() < kRecordHeader) {
            break;
        }
        const int type = bytesToInt16(header);
        const std::size_t length = bytesToUInt16(header.substr(2));
        if (length < shortestBody(type)) {
            counted.end = counted.end && type != kRecordEnd;
            reader.skip(length);
            continue;
        }
        const std::string_view body = reader.read(length);
        if (body.size() < length) {
            break;
        }
        const CellPosition at{bytesToInt16(body.substr(3)), bytesToInt16(body.substr(1))};
        if (!isInSheet(at)) {
            ++counted.cells;
            continue;
        }
        full.at(at) = readCell(type, body, at, dialect);
        last = {std::max(last.row, at.row), std::max(last.column, at.column)};
    }
    return copyOf(full, last.row + 1, last.column + 1);
}

}  // namespace velmora
