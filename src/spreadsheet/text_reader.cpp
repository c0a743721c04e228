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

std::vector<std::string> readLines(File& file) {
    SheetLines reader(file);
    std::vector<std::string> lines;
    std::string line;
    while (lines.size() < kSheetRows && reader.next(line)) {
        lines.push_back(line);
    }
    return lines;
}

/// At most as many fields as a sheet has columns.
std::vector<std::string_view> splitFields(std::string_view line, std::string_view separator) {
    std::vector<std::string_view> fields;
    while (fields.size() < kSheetColumns) {
        const std::size_t cut = separator.empty() ? std::string_view::npos : line.find(separator);
        fields.push_back(line.substr(0, cut));
        if (cut == std::string_view::npos) {
            break;
        }
        line.remove_prefix(cut + separator.size());
    }
    return fields;
}

/// A column of a fixed layout, in positions of the line: from `begin` up to `end`.
struct Span {
    std::size_t begin;
    std::size_t end;
};

std::vector<Span> findColumns(const std::vector<std::string>& lines) {
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
        if (columns.size() == kSheetColumns) {
            break;
        }
        columns.push_back({i, used.size()});
    }
    return columns;
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
    std::string text = trimBlanks(field);
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') {
        text = text.substr(1, text.size() - 2);
    }
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

SheetGrid readDelimited(File& file, std::string separator, const NumberLocale& locale) {
    const std::vector<std::string> lines = readLines(file);
    std::vector<std::vector<std::string_view>> rows;
    std::size_t columns = 0;
    for (const std::string& line : lines) {
        if (separator.empty()) {
            separator = detectSeparator(line);
        }
        rows.push_back(splitFields(line, separator));
        columns = std::max(columns, rows.back().size());
    }
    SheetGrid sheet(static_cast<int>(rows.size()), static_cast<int>(columns));
    CellPosition at;
    for (const std::vector<std::string_view>& fields : rows) {
        at.column = 0;
        for (const std::string_view field : fields) {
            sheet.at(at) = fieldCell(field, locale);
            ++at.column;
        }
        ++at.row;
    }
    return sheet;
}

SheetGrid readFixedText(File& file, const NumberLocale& locale) {
    const std::vector<std::string> lines = readLines(file);
    const std::vector<Span> columns = findColumns(lines);
    SheetGrid sheet(static_cast<int>(lines.size()), static_cast<int>(columns.size()));
    if (!sheet.exists()) {
        return sheet;
    }
    CellPosition at;
    for (const std::string_view line : lines) {
        at.column = 0;
        for (const Span& column : columns) {
            const std::size_t begin = std::min(column.begin, line.size());
            sheet.at(at) = fieldCell(line.substr(begin, column.end - column.begin), locale);
            ++at.column;
        }
        ++at.row;
    }
    return sheet;
}

}  // namespace velmora
