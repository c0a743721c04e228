#include "ui/qt/file_drop.h"

#include <QDropEvent>
#include <QMetaObject>
#include <QMimeData>
#include <QUrl>
#include <utility>

#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

std::vector<std::string> localPaths(const QMimeData& data) {
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            paths.push_back(systemPath(url.toLocalFile()));
        }
    }
    return paths;
}

}  // namespace

FileDrop::FileDrop(QWidget& window, Dropped dropped) : QObject(&window), dropped_(std::move(dropped)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
    const bool drops = event->type() == QEvent::Drop;
    if (!drops && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove) {
        return QObject::eventFilter(watched, event);
    }
    // The events of dragging are those of dropping.
    auto* drag = static_cast<QDropEvent*>(event);
    const std::vector<std::string> paths = localPaths(*drag->mimeData());
    if (paths.empty() || !drag->possibleActions().testFlag(Qt::CopyAction)) {
        drag->ignore();
        return true;
    }
    // Whatever was meant, the files stay where they are.
    drag->setDropAction(Qt::CopyAction);
    drag->accept();
    if (drops) {
        QMetaObject::invokeMethod(
            this, [this, paths] { dropped_(paths); }, Qt::QueuedConnection);
    }
    return true;
}

}  // namespace velmora
