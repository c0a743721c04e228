#include "ui/qt/growing_window.h"

#include <QLayout>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <utility>

namespace velmora {

void GrowingWindow::setGrownSize(const QSize& size) {
    grown_ = size;
    fit();
}

/// Whether it is neither minimised nor as large as the screen.
bool GrowingWindow::hasItsOwnSize() const {
    return (windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
}

void GrowingWindow::fit() {
    if (fitting_ || layout() == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> fitting(fitting_, true);
    layout()->activate();
    setMinimumSize(layout()->totalSizeHint());
    if (hasItsOwnSize()) {
        resize(grown_.expandedTo(minimumSize()));
    }
    // A hidden window does not do this before it is shown.
    layout()->setGeometry(contentsRect());
}

bool GrowingWindow::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) {
        fit();
    }
    return QWidget::event(event);
}

void GrowingWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const QSize old = event->oldSize();
    const bool byItsUser = !fitting_ && old.isValid();  // a window that appears had no size before
    if (!byItsUser || !hasItsOwnSize()) {
        return;
    }
    const auto grown = [](int before, int now, int least, int kept) {
        if (now == before) {
            return kept;
        }
        return now > least ? now : 0;
    };
    before_ = std::exchange(grown_, {grown(old.width(), width(), minimumWidth(), grown_.width()),
                                     grown(old.height(), height(), minimumHeight(), grown_.height())});
    Q_EMIT resizedByUser();
}

// Some desktops resize a window before they say that it is maximised: that is not a size that the user gave
// it.
void GrowingWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    const QSize room = screen()->availableSize();
    if (event->type() == QEvent::WindowStateChange && (isMaximized() || isFullScreen()) && grown_ == size() &&
        frameGeometry().size().expandedTo(room) == frameGeometry().size()) {
        grown_ = before_;
    }
}

}  // namespace velmora
