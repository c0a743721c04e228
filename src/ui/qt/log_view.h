// The debug window's list.
#pragma once

#include <QListView>

#include "ui/qt/log_lines.h"

namespace velmora {

/// Shows LogLines in rows of one height. A plain list lays every row out again whenever one is added; this
/// one reckons a row's place from its number, so that adding costs the same in a log of any length.
class LogView : public QListView {
    Q_OBJECT

  public:
    /// The lines must outlive the view.
    explicit LogView(LogLines& lines, QWidget* parent = nullptr);

    /// While following, the end stays in view. Scrolling up by hand, or going to a line further up, holds.
    bool following() const { return following_; }
    void setFollowing(bool on);

    /// The selected lines in the log's order, each with its line end; empty when none is selected.
    QString selectedText() const;

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint& point) const override;
    void doItemsLayout() override;
    void reset() override;
    /// Typing a letter searches nothing: all lines begin with a time.
    void keyboardSearch(const QString& search) override;

  Q_SIGNALS:
    void followingChanged(bool on);

  protected:
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

  private:
    int rowHeight() const;
    int textColumn() const;
    int contentsWidth() const;
    int topRow() const;
    int fullRows() const;
    int rowAt(int y) const;
    void paintLine(QPainter& painter, int row) const;

    LogLines& lines_;
    bool following_ = true;
    bool arranging_ = false;
};

}  // namespace velmora
