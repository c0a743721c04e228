#include "ui/qt/transfer_table.h"

#include <algorithm>

#include "ui/qt/core_texts.h"
#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

constexpr int kBatchMilliseconds = 100;

TransferList::Column columnOf(int section) {
    return static_cast<TransferList::Column>(section);
}

bool isNumber(int section) {
    return section == TransferList::Size || section == TransferList::Duration ||
           section == TransferList::Rate;
}

}  // namespace

TransferTable::TransferTable(TransferList& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list), rows_(static_cast<int>(list.size())) {
    timer_.setSingleShot(true);
    timer_.setInterval(kBatchMilliseconds);
    connect(&timer_, &QTimer::timeout, this, &TransferTable::update);
    list_.show(*this);
}

void TransferTable::setWatched(bool watched) {
    watched_ = watched;
    if (watched) {
        update();
    } else {
        timer_.stop();
    }
}

void TransferTable::transferAdded() {
    ++added_;
    expect();
}

void TransferTable::transferChanged() {
    expect();
}

void TransferTable::expect() {
    if (watched_ && !timer_.isActive()) {
        timer_.start();
    }
}

void TransferTable::update() {
    timer_.stop();
    const int total = static_cast<int>(list_.size());
    const int kept = total - static_cast<int>(std::min(added_, list_.size()));
    if (kept < rows_) {
        beginRemoveRows({}, kept, rows_ - 1);
        rows_ = kept;
        endRemoveRows();
    }
    const int added = total - kept;
    if (added > 0) {
        beginInsertRows({}, 0, added - 1);
        rows_ = total;
        added_ = 0;
        endInsertRows();
    }
    if (added < rows_) {
        // Of those that were there only the first may have gone on.
        Q_EMIT dataChanged(index(added, 0), index(added, TransferList::kColumns - 1));
    }
}

const ListedTransfer* TransferTable::transfer(int row) const {
    return listRow(row) < list_.size() ? &list_.at(listRow(row)) : nullptr;
}

QString TransferTable::details(int row) const {
    QStringList lines;
    for (int column = 0; column < columnCount({}); ++column) {
        const QString text = shownText(index(row, column));
        if (!text.isEmpty()) {
            lines.append(
                tr("%1: %2").arg(headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(), text));
        }
    }
    const QString more = coreText(qtText(list_.details(listRow(row))));
    if (!more.isEmpty()) {
        lines.append(more);
    }
    return lines.join(u'\n');
}

int TransferTable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int TransferTable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int{TransferList::kColumns};
}

/// A file may be called as one of our words is; only what we say is in the user's language.
QString TransferTable::shownText(const QModelIndex& index) const {
    const TransferList::Column column = columnOf(index.column());
    const QString text = qtText(list_.text(listRow(index.row()), column));
    return column == TransferList::Name ? text : coreText(text);
}

QVariant TransferTable::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || transfer(index.row()) == nullptr) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return shownText(index);
        case Qt::ToolTipRole:
            return details(index.row());
        case Qt::TextAlignmentRole:
            return int{isNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft} | int{Qt::AlignVCenter};
        default:
            return {};
    }
}

QVariant TransferTable::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return coreText(QString::fromLatin1(TransferList::heading(columnOf(section))));
        case Qt::TextAlignmentRole:
            return int{isNumber(section) ? Qt::AlignRight : Qt::AlignLeft} | int{Qt::AlignVCenter};
        default:
            return {};
    }
}

}  // namespace velmora
