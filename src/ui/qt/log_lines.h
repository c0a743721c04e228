// The debug window's lines.
#pragma once

#include <QAbstractListModel>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Any number of lines of Windows-1252 bytes, a row each. They lie in chunks, so that adding to a long log
/// moves none of those that are there, and a line becomes a text of the toolkit only when it is shown.
class LogLines : public QAbstractListModel {
    Q_OBJECT

  public:
    enum class Direction { Forward, Backward };

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Adds the lines at the end, with one rowsInserted for them all.
    void append(std::vector<std::string> batch);
    void clear();

    /// `row` must be there.
    const std::string& line(int row) const { return lines_[static_cast<std::size_t>(row)]; }
    /// The bytes of the longest line since the log was last empty.
    std::size_t longest() const { return longest_; }

    /// The next row that contains `part`, in capitals or not. The search begins beside `from` (-1: beside
    /// the log, at either end), goes round the end and tries `from` last; nothing for an empty `part`.
    std::optional<int> find(std::string_view part, int from, Direction direction) const;

  private:
    std::deque<std::string> lines_;
    std::size_t longest_ = 0;
};

}  // namespace velmora
