#include "spreadsheet/text_reader.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "base/byte_text.h"
#include "base/number_text.h"
#include "spreadsheet/byte_reader.h"

namespace velmora {
namespace {

bool isBlank(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

std::vector<std::string> readLines(File& file, LeftOut* leftOut) {
    SheetLines reader(file);
    std::vector<std::string> lines;
    std::string line;
    while (lines.size() < kSheetRows && reader.next(line)) {
        lines.push_back(line);
    }
    while (leftOut != nullptr && reader.next(line)) {
        leftOut->rows += isBlank(line) ? 0 : 1;
    }
    return lines;
}

/// Takes the field at the front of a line off it; the line is nothing when that was the last.
std::string_view takeField(std::optional<std::string_view>& line, std::string_view separator) {
    const std::size_t cut = separator.empty() ? std::string_view::npos : line->find(separator);
    const std::string_view field = line->substr(0, cut);
    if (cut == std::string_view::npos) {
        line.reset();
    } else {
        line->remove_prefix(cut + separator.size());
    }
    return field;
}

/// At most as many fields as a sheet has columns.
std::vector<std::string_view> splitFields(std::string_view line, std::string_view separator,
                                          LeftOut* leftOut) {
    std::vector<std::string_view> fields;
    std::optional<std::string_view> rest = line;
    while (fields.size() < kSheetColumns && rest) {
        fields.push_back(takeField(rest, separator));
    }
    for (std::size_t beyond = 1; leftOut != nullptr && rest; ++beyond) {
        if (!isBlank(takeField(rest, separator))) {
            leftOut->columns = std::max(leftOut->columns, beyond);
        }
    }
    return fields;
}

/// A column of a fixed layout, in positions of the line: from `begin` up to `end`.
struct Span {
    std::size_t begin;
    std::size_t end;
};

std::vector<Span> findColumns(const std::vector<std::string>& lines, LeftOut* leftOut) {
    std::vector<bool> used;
    for (const std::string& line : lines) {
        used.resize(std::max(used.size(), line.size()));
        for (std::size_t i = 0; i < line.size(); ++i) {
            used[i] = used[i] || line[i] != ' ';
        }
    }
    std::vector<Span> columns;
    for (std::size_t i = 0; i < used.size(); ++i) {
        if (!used[i] || (i > 0 && used[i - 1])) {
            continue;
        }
        if (!columns.empty()) {
            columns.back().end = i;
        }
        columns.push_back({i, used.size()});
    }
    if (columns.size() > kSheetColumns) {
        if (leftOut != nullptr) {
            leftOut->columns = columns.size() - kSheetColumns;
        }
        columns.resize(kSheetColumns);
    }
    return columns;
}

/// A field without the blanks around it and one pair of quotes.
std::string fieldText(std::string_view field) {
    std::string text = trimBlanks(field);
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') {
        text = text.substr(1, text.size() - 2);
    }
    return text;
}

/// The cell for a field, which is counted when it is cut.
Cell countedCell(std::string_view field, const NumberLocale& locale, LeftOut* leftOut) {
    Cell cell = fieldCell(field, locale);
    if (leftOut != nullptr && std::holds_alternative<Label>(cell) &&
        fieldText(field).size() > kLongestCellText) {
        ++leftOut->texts;
    }
    return cell;
}

}  // namespace

std::string detectSeparator(std::string_view line) {
    if (!line.empty() && line.front() == '"') {
        const std::size_t close = line.find('"', 1);
        const std::size_t next =
            close == std::string_view::npos ? close : line.find_first_not_of(' ', close + 1);
        return next == std::string_view::npos ? std::string() : std::string(1, line[next]);
    }
    const std::size_t first = line.find_first_of(";,");
    return first == std::string_view::npos ? std::string() : std::string(1, line[first]);
}

Cell fieldCell(std::string_view field, const NumberLocale& locale) {
    const std::string text = fieldText(field);
    const std::optional<double> value = localeNumber(text, locale);
    if (!value) {
        return Label{text.substr(0, kLongestCellText)};
    }
    constexpr double kIntegerLimit = 32'768;
    const double asWritten = numericValue(plainText(*value));
    if (std::trunc(*value) == *value && std::abs(asWritten) < kIntegerLimit) {
        return static_cast<std::int16_t>(*value);
    }
    return *value;
}

SheetGrid readDelimited(File& file, std::string separator, const NumberLocale& locale, LeftOut* leftOut) {
    const std::vector<std::string> lines = readLines(file, leftOut);
    std::vector<std::vector<std::string_view>> rows;
    std::size_t columns = 0;
    for (const std::string& line : lines) {
        if (separator.empty()) {
            separator = detectSeparator(line);
        }
        rows.push_back(splitFields(line, separator, leftOut));
        columns = std::max(columns, rows.back().size());
    }
    SheetGrid sheet(static_cast<int>(rows.size()), static_cast<int>(columns));
    CellPosition at;
    for (const std::vector<std::string_view>& fields : rows) {
        at.column = 0;
        for (const std::string_view field : fields) {
            sheet.at(at) = countedCell(field, locale, leftOut);
            ++at.column;
        }
        ++at.row;
    }
    return sheet;
}

SheetGrid readFixedText(File& file, const NumberLocale& locale, LeftOut* leftOut) {
    const std::vector<std::string> lines = readLines(file, leftOut);
    const std::vector<Span> columns = findColumns(lines, leftOut);
    SheetGrid sheet(static_cast<int>(lines.size()), static_cast<int>(columns.size()));
    if (!sheet.exists()) {
        return sheet;
    }
    CellPosition at;
    for (const std::string_view line : lines) {
        at.column = 0;
        for (const Span& column : columns) {
            const std::size_t begin = std::min(column.begin, line.size());
            sheet.at(at) = countedCell(line.substr(begin, column.end - column.begin), locale, leftOut);
            ++at.column;
        }
        ++at.row;
    }
    return sheet;
}

}  // namespace velmora
