#include "organiser/cells_file.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <set>
#include <tuple>
#include <utility>

#include "base/ascii.h"
#include "base/number_text.h"
#include "organiser/conversation.h"
#include "organiser/local_files.h"

namespace velmora {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::size_t kCellPrefix = 3;  // column, row and type precede the text in a message

std::size_t skipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && isDigit(text[at])) {
        ++at;
    }
    return at;
}

std::size_t skipSign(std::string_view text, std::size_t at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

/// Sign, digits with at most one ".", exponent; at least one digit before the exponent and one in it.
bool isNumber(std::string_view text) {
    const std::size_t begin = skipSign(text, 0);
    std::size_t at = skipDigits(text, begin);
    std::size_t digits = at - begin;
    if (at < text.size() && text[at] == '.') {
        const std::size_t end = skipDigits(text, at + 1);
        digits += end - (at + 1);
        at = end;
    }
    if (digits > 0 && at < text.size() && (text[at] == 'E' || text[at] == 'e')) {
        const std::size_t exponent = skipSign(text, at + 1);
        at = skipDigits(text, exponent);
        digits = at - exponent;
    }
    return digits > 0 && at == text.size();
}

/// Column and row of "A1" to "Z99", without regard to case; a negative column when it is none.
std::pair<int, int> position(std::string_view reference) {
    if (reference.size() < 2 || reference.size() > 3 || reference[1] == '0' ||
        skipDigits(reference, 1) != reference.size()) {
        return {-1, 0};
    }
    const int column = std::toupper(static_cast<unsigned char>(reference[0])) - 'A';
    const int row = std::stoi(std::string(reference.substr(1))) - 1;
    // Two digits reach the last row and no further.
    return column < kSheetColumns ? std::pair(column, row) : std::pair(-1, 0);
}

/// Parses one line; the text of the problem when it is no cell.
std::string parseLine(std::string_view line, SheetCell& cell) {
    const std::size_t end = std::min(line.find_first_of(kBlanks), line.size());
    std::tie(cell.column, cell.row) = position(line.substr(0, end));
    if (cell.column < 0) {
        return "\"" + std::string(line.substr(0, end)) + "\" is no cell from A1 to Z99";
    }
    const std::size_t begin = std::min(line.find_first_not_of(kBlanks, end), line.size());
    std::string_view content = line.substr(begin);
    cell.type = SheetCell::kNumberOrFormula;
    if (!content.empty() && content.front() == '\'') {
        cell.type = SheetCell::kLabel;
        content.remove_prefix(1);
    } else if (content.empty() || content.front() != '=') {
        content = content.substr(0, content.find_last_not_of(kBlanks) + 1);
        if (!isNumber(content)) {
            return "\"" + std::string(content) +
                   "\" is no number; a label begins with ' and a formula with =";
        }
    }
    if (content.size() > kMostData - kCellPrefix) {
        return "the text is longer than the " + std::to_string(kMostData - kCellPrefix) +
               " bytes that one message holds";
    }
    cell.text = content;
    return "";
}

std::string reference(const SheetCell& cell) {
    return static_cast<char>('A' + cell.column) + std::to_string(cell.row + 1);
}

}  // namespace

std::vector<SheetCell> parseCells(const std::string& path, std::string_view text) {
    std::vector<SheetCell> cells;
    std::set<std::pair<int, int>> seen;
    std::size_t number = 0;
    for (const std::string& line : splitLines(text)) {
        ++number;
        if (line.find_first_not_of(kBlanks) == std::string::npos || line.front() == '#') {
            continue;
        }
        SheetCell cell;
        std::string problem = parseLine(line, cell);
        if (problem.empty() && !seen.insert({cell.column, cell.row}).second) {
            problem = reference(cell).append(" was given before");
        }
        if (!problem.empty()) {
            throw LocalFileError(std::string(path)
                                     .append(", line ")
                                     .append(std::to_string(number))
                                     .append(": ")
                                     .append(problem)
                                     .append("."));
        }
        cells.push_back(cell);
    }
    if (cells.empty()) {
        throw LocalFileError(path + " holds no cell.");
    }
    return cells;
}

std::vector<std::string> cellLines(const std::vector<SheetCell>& cells) {
    std::vector<std::string> lines;
    for (const SheetCell& cell : cells) {
        std::string content = cell.text;
        if (cell.type == SheetCell::kLabel) {
            content.insert(0, "'");
        } else if (isNumber(content)) {
            const double value = numericValue(content);
            content = std::isfinite(value) ? plainText(value) : content;
        }
        lines.push_back(reference(cell) + " " + content);
    }
    return lines;
}

}  // namespace velmora
