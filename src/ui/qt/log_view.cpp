#include "ui/qt/log_view.h"

#include <QAccessible>
#include <QFont>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <vector>

#include "ui/qt/qt_text.h"

namespace velmora {

namespace {

constexpr int kMargin = 4;
constexpr int kRowSpacing = 2;
// Room for the time of a whole day, before or after midnight, and a gap.
constexpr int kTimeCharacters = 11;

QFont logFont() {
    QFont font(QStringLiteral("Courier New"));
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

}  // namespace

// The plain list's own part of these events would lay out every row, so they go to its base at once.
// NOLINTBEGIN(bugprone-parent-virtual-call)

LogView::LogView(LogLines& lines, QWidget* parent) : QListView(parent), lines_(lines) {
    setFont(logFont());
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setModel(&lines_);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this, before = 0](int value) mutable {
        if (value < before && !arranging_) {
            setFollowing(false);
        }
        before = value;
    });
}

void LogView::setFollowing(bool on) {
    if (on != following_) {
        following_ = on;
        Q_EMIT followingChanged(on);
    }
    if (on) {
        scrollToBottom();
    }
}

QString LogView::selectedText() const {
    const QItemSelection selection = selectionModel()->selection();
    std::vector<QItemSelectionRange> ranges(selection.begin(), selection.end());
    std::sort(ranges.begin(), ranges.end(), [](const auto& a, const auto& b) { return a.top() < b.top(); });
    QString text;
    for (const QItemSelectionRange& range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            text += qtText(lines_.line(row));
            text += '\n';
        }
    }
    return text;
}

int LogView::rowHeight() const {
    return fontMetrics().height() + kRowSpacing;
}

int LogView::textColumn() const {
    return kMargin + kTimeCharacters * fontMetrics().horizontalAdvance('0');
}

int LogView::contentsWidth() const {
    return textColumn() + static_cast<int>(lines_.longest()) * fontMetrics().horizontalAdvance('0') + kMargin;
}

int LogView::topRow() const {
    return verticalScrollBar()->value();
}

int LogView::fullRows() const {
    return std::max(viewport()->height() / rowHeight(), 1);
}

int LogView::rowAt(int y) const {
    const int height = rowHeight();
    return topRow() + (y >= 0 ? y / height : -((height - 1 - y) / height));
}

QRect LogView::visualRect(const QModelIndex& index) const {
    if (!index.isValid()) {
        return {};
    }
    return {-horizontalOffset(), (index.row() - topRow()) * rowHeight(),
            std::max(contentsWidth(), viewport()->width()), rowHeight()};
}

void LogView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!index.isValid()) {
        return;
    }
    const int row = index.row();
    const int shown = fullRows();
    const bool outside = row < topRow() || row >= topRow() + shown;
    if (hint == PositionAtCenter) {
        verticalScrollBar()->setValue(row - shown / 2);
    } else if (hint == PositionAtTop || (outside && row < topRow())) {
        verticalScrollBar()->setValue(row);
    } else if (hint == PositionAtBottom || outside) {
        verticalScrollBar()->setValue(row - shown + 1);
    }
}

QModelIndex LogView::indexAt(const QPoint& point) const {
    return lines_.index(rowAt(point.y()), 0);
}

void LogView::doItemsLayout() {
    QAbstractItemView::doItemsLayout();
}

// At once, so that a held view of an emptied log begins at its top.
void LogView::reset() {
    QListView::reset();
    updateGeometries();
}

void LogView::keyboardSearch(const QString& /*search*/) {}

void LogView::rowsInserted(const QModelIndex& parent, int start, int end) {
    QAbstractItemView::rowsInserted(parent, start, end);
    updateGeometries();
    if (start <= topRow() + fullRows()) {
        viewport()->update();
    }
}

void LogView::updateGeometries() {
    arranging_ = true;
    QAbstractItemView::updateGeometries();
    QScrollBar* vertical = verticalScrollBar();
    vertical->setSingleStep(1);
    vertical->setPageStep(fullRows());
    vertical->setRange(0, std::max(lines_.rowCount() - fullRows(), 0));
    QScrollBar* horizontal = horizontalScrollBar();
    horizontal->setSingleStep(4 * fontMetrics().horizontalAdvance('0'));
    horizontal->setPageStep(viewport()->width());
    horizontal->setRange(0, std::max(contentsWidth() - viewport()->width(), 0));
    if (following_) {
        vertical->setValue(vertical->maximum());
    }
    arranging_ = false;
}

void LogView::scrollContentsBy(int dx, int dy) {
    viewport()->scroll(isRightToLeft() ? -dx : dx, dy * rowHeight());
}

void LogView::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        scheduleDelayedItemsLayout();
    }
}

void LogView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const int last = std::min(rowAt(event->rect().bottom()), lines_.rowCount() - 1);
    for (int row = std::max(rowAt(event->rect().top()), 0); row <= last; ++row) {
        paintLine(painter, row);
    }
}

void LogView::paintLine(QPainter& painter, int row) const {
    const QModelIndex index = lines_.index(row, 0);
    const QRect area = visualRect(index);
    const bool selected = selectionModel()->isSelected(index);
    const QPalette::ColorGroup group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    if (selected) {
        painter.fillRect(area, palette().brush(group, QPalette::Highlight));
    }
    painter.setPen(palette().color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    const QString line = qtText(lines_.line(row));
    const qsizetype tab = line.indexOf('\t');
    constexpr int kHow = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextExpandTabs;
    painter.drawText(area.adjusted(kMargin, 0, 0, 0), kHow, line.left(std::max<qsizetype>(tab, 0)));
    painter.drawText(area.adjusted(textColumn(), 0, 0, 0), kHow, line.mid(tab + 1));
    if (hasFocus() && index == currentIndex()) {
        QStyleOptionFocusRect frame;
        frame.initFrom(this);
        frame.rect = area;
        frame.backgroundColor = palette().color(group, selected ? QPalette::Highlight : QPalette::Base);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
    }
}

QModelIndex LogView::moveCursor(CursorAction action, Qt::KeyboardModifiers /*modifiers*/) {
    const int last = lines_.rowCount() - 1;
    if (last < 0) {
        return {};
    }
    const bool nowhere = !currentIndex().isValid();
    int row = nowhere ? topRow() : currentIndex().row();
    switch (action) {
        case MoveUp:
        case MovePrevious:
            row -= nowhere ? 0 : 1;
            break;
        case MoveDown:
        case MoveNext:
            row += nowhere ? 0 : 1;
            break;
        case MovePageUp:
            row -= fullRows();
            break;
        case MovePageDown:
            row += fullRows();
            break;
        case MoveHome:
            row = 0;
            break;
        case MoveEnd:
            row = last;
            break;
        case MoveLeft:
            horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
            break;
        case MoveRight:
            horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
            break;
    }
    return lines_.index(std::clamp(row, 0, last), 0);
}

int LogView::horizontalOffset() const {
    return horizontalScrollBar()->value();
}

int LogView::verticalOffset() const {
    return topRow() * rowHeight();
}

void LogView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
    const int last = lines_.rowCount() - 1;
    const int from = std::max(rowAt(std::min(rect.top(), rect.bottom())), 0);
    const int to = std::min(rowAt(std::max(rect.top(), rect.bottom())), last);
    QItemSelection selection;
    if (from <= to) {
        selection.select(lines_.index(from, 0), lines_.index(to, 0));
    }
    selectionModel()->select(selection, command);
}

QRegion LogView::visualRegionForSelection(const QItemSelection& selection) const {
    QRegion region;
    for (const QItemSelectionRange& range : selection) {
        const QRect first = visualRect(lines_.index(range.top(), 0));
        const QRect last = visualRect(lines_.index(range.bottom(), 0));
        region += first.united(last).intersected(viewport()->rect());
    }
    return region;
}

// The plain list would look for the row in a layout that is not kept here.
void LogView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QAbstractItemView::currentChanged(current, previous);
    if (QAccessible::isActive() && current.isValid() && hasFocus()) {
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild(current.row());
        QAccessible::updateAccessibility(&event);
    }
}

void LogView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QAbstractItemView::selectionChanged(selected, deselected);
}

// NOLINTEND(bugprone-parent-virtual-call)

}  // namespace velmora
