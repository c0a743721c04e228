#include "ui/qt/log_lines.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>

#include "ui/qt/qt_text.h"

namespace velmora {

namespace {

using FoldTable = std::array<char, 256>;

FoldTable makeFoldTable() {
    FoldTable table{};
    for (std::size_t code = 0; code < table.size(); ++code) {
        table[code] = upperCase(std::string(1, static_cast<char>(code))).front();
    }
    return table;
}

// Without a copy of each line in capitals: a million of them take their time.
bool containsFolded(const FoldTable& fold, const std::string& line, std::string_view folded) {
    const auto same = [&fold](char in, char wanted) {
        return fold[static_cast<unsigned char>(in)] == wanted;
    };
    return std::search(line.begin(), line.end(), folded.begin(), folded.end(), same) != line.end();
}

}  // namespace

int LogLines::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(pollingHidden_ ? shown_.size() : lines_.size());
}

QVariant LogLines::data(const QModelIndex& index, int role) const {
    const bool known = checkIndex(index, CheckIndexOption::IndexIsValid);
    return known && role == Qt::DisplayRole ? QVariant(qtText(line(index.row()))) : QVariant();
}

void LogLines::append(std::vector<Line> batch) {
    const auto hidden = [this](const Line& line) { return pollingHidden_ && line.polling; };
    const auto rows = std::count_if(batch.begin(), batch.end(), std::not_fn(hidden));
    const int first = rowCount();
    if (rows > 0) {
        beginInsertRows({}, first, first + static_cast<int>(rows) - 1);
    }
    for (Line& line : batch) {
        longest_ = std::max(longest_, line.text.size());
        if (pollingHidden_ && !line.polling) {
            shown_.push_back(lines_.size());
        }
        lines_.push_back(std::move(line));
    }
    if (rows > 0) {
        endInsertRows();
    }
}

void LogLines::clear() {
    beginResetModel();
    lines_.clear();
    shown_.clear();
    longest_ = 0;
    endResetModel();
}

void LogLines::setPollingHidden(bool hidden) {
    beginResetModel();
    pollingHidden_ = hidden;
    shown_.clear();
    for (std::size_t place = 0; hidden && place < lines_.size(); ++place) {
        if (!lines_[place].polling) {
            shown_.push_back(place);
        }
    }
    endResetModel();
}

std::size_t LogLines::place(int row) const {
    const auto index = static_cast<std::size_t>(row);
    return pollingHidden_ ? shown_[index] : index;
}

int LogLines::rowFrom(std::size_t place) const {
    if (!pollingHidden_) {
        return static_cast<int>(std::min(place, lines_.size()));
    }
    return static_cast<int>(std::lower_bound(shown_.begin(), shown_.end(), place) - shown_.begin());
}

std::optional<int> LogLines::find(std::string_view part, int from, Direction direction) const {
    if (part.empty()) {
        return std::nullopt;
    }
    const FoldTable fold = makeFoldTable();
    const std::string folded = upperCase(part);
    const int count = rowCount();
    const bool forward = direction == Direction::Forward;
    int row = from < 0 && !forward ? count : from;
    for (int tried = 0; tried < count; ++tried) {
        row += forward ? 1 : -1;
        row = row < 0 ? count - 1 : row >= count ? 0 : row;
        if (containsFolded(fold, line(row), folded)) {
            return row;
        }
    }
    return std::nullopt;
}

}  // namespace velmora
