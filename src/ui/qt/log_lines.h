// The debug window's lines.
#pragma once

#include <QAbstractListModel>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Any number of lines of Windows-1252 bytes; a row for each that is not hidden. They lie in chunks, so that
/// adding to a long log moves none of those that are there, and a line becomes a text of the toolkit only
/// when it is shown.
class LogLines : public QAbstractListModel {
    Q_OBJECT

  public:
    enum class Direction { Forward, Backward };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    struct Line {
        std::string text;
        bool polling = false;  ///< tells of the polling of an idle link
    };

    /// Adds the lines at the end, with one rowsInserted for them all.
    void append(std::vector<Line> batch);
    void clear();

    /// While they are hidden, lines of polling have no row; they are kept. Changing it resets the model.
    void setPollingHidden(bool hidden);
    /// All lines in their order, hidden ones too.
    const std::deque<Line>& lines() const { return lines_; }

    /// `row` must be there.
    const std::string& line(int row) const { return lines_[place(row)].text; }
    /// Where among all lines the line of a row stands; `row` must be there.
    std::size_t place(int row) const;
    /// The first row whose line stands at a place or behind it; rowCount() when there is none.
    int rowFrom(std::size_t place) const;
    /// The bytes of the longest line since the log was last empty.
    std::size_t longest() const { return longest_; }

    /// The next row that contains `part`, in capitals or not. The search begins beside `from` (-1: beside
    /// the log, at either end), goes round the end and tries `from` last; nothing for an empty `part`.
    std::optional<int> find(std::string_view part, int from, Direction direction) const;

  private:
    std::deque<Line> lines_;
    std::deque<std::size_t> shown_;  // the places of the rows, while lines are hidden
    bool pollingHidden_ = false;
    std::size_t longest_ = 0;
};

}  // namespace velmora
