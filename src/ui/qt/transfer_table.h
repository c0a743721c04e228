// The transfers as a table of the toolkit.
#pragma once

#include <QAbstractTableModel>
#include <QTimer>

#include "ui/transfer_list.h"

namespace velmora {

/// Follows a TransferList in batches while it is watched, so that a busy link does not wait for the screen,
/// and not at all while nobody sees it.
class TransferTable : public QAbstractTableModel, private TransferListView {
    Q_OBJECT

  public:
    /// The list must outlive the table.
    explicit TransferTable(TransferList& list, QObject* parent = nullptr);

    /// Whether somebody sees the table.
    void setWatched(bool watched);
    /// Takes over what is new.
    void update();

    /// The transfer of a row of the table; null when the list has dropped it, and the row goes with the next
    /// batch. Requires: the row is there.
    const ListedTransfer* transfer(int row) const;
    /// All that is known of it, line by line, for the clipboard and for a pointer that rests on the row.
    /// Requires: it is not dropped.
    QString details(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QString shownText(const QModelIndex& index) const;
    void transferAdded() override;
    void transferChanged() override;
    void expect();
    std::size_t listRow(int row) const { return static_cast<std::size_t>(row) + added_; }

    TransferList& list_;
    QTimer timer_{this};
    bool watched_ = false;
    std::size_t added_ = 0;  // transfers that are not in the table yet
    int rows_ = 0;
};

}  // namespace velmora
