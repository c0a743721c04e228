#include "spreadsheet/text_writer.h"

#include <algorithm>
#include <vector>

namespace velmora {
namespace {

constexpr const char* kLineEnd = "\r\n";

/// Writes the cells of a sheet row by row. `write` takes the cell, its text and its column.
template <typename Write>
std::string writeRows(const SheetGrid& sheet, const NumberLocale& locale, Write write) {
    std::string out;
    for (int row = 0; row < sheet.rows(); ++row) {
        for (int column = 0; column < sheet.columns(); ++column) {
            const Cell& cell = sheet.at({row, column});
            write(out, cell, cellText(cell, locale), static_cast<std::size_t>(column));
        }
        out += kLineEnd;
    }
    return out;
}

std::vector<std::size_t> columnWidths(const SheetGrid& sheet, const NumberLocale& locale) {
    std::vector<std::size_t> widths(static_cast<std::size_t>(sheet.columns()));
    writeRows(sheet, locale, [&](std::string&, const Cell&, const std::string& text, std::size_t column) {
        widths[column] = std::max(widths[column], text.size());
    });
    return widths;
}

struct CellText {
    const NumberLocale& locale;

    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(std::int16_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return localeNumberText(value, locale); }
    std::string operator()(const Label& label) const { return label.text; }
    std::string operator()(const Formula& formula) const { return formula.text; }
};

}  // namespace

std::string cellText(const Cell& cell, const NumberLocale& locale) {
    return std::visit(CellText{locale}, cell);
}

std::string writeCsv(const SheetGrid& sheet, const NumberLocale& locale) {
    return writeRows(sheet, locale, [](std::string& out, const Cell&, const std::string& text, std::size_t) {
        out.append("\"").append(text).append("\",");
    });
}

std::string writeTabText(const SheetGrid& sheet, const NumberLocale& locale) {
    return writeRows(sheet, locale, [](std::string& out, const Cell&, const std::string& text, std::size_t) {
        out.append(text).append("\t");
    });
}

std::string writeFixedText(const SheetGrid& sheet, const NumberLocale& locale) {
    const std::vector<std::size_t> widths = columnWidths(sheet, locale);
    return writeRows(sheet, locale,
                     [&](std::string& out, const Cell& cell, const std::string& text, std::size_t column) {
                         const std::size_t padding = widths[column] - text.size();
                         if (isNumber(cell)) {
                             out.append(text).append(padding + 1, ' ');
                         } else {
                             out.append(padding + 1, ' ').append(text);
                         }
                     });
}

}  // namespace velmora
