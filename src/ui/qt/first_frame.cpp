#include "ui/qt/first_frame.h"

#include <QEvent>
#include <QWindow>
#include <utility>

namespace velmora {
namespace {

/// Owned by the window; ends when it has seen the frame.
class FrameWatch : public QObject {
  public:
    FrameWatch(QWidget& window, std::function<void()> place)
        : QObject(&window), window_(window), put_(window.pos()), place_(std::move(place)) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
            case QEvent::Show:
            case QEvent::Move:
            case QEvent::Paint:
            case QEvent::WindowActivate:
                look();
                break;
            default:
                break;
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    void look() {
        const QMargins frame = window_.windowHandle()->frameMargins();
        if (frame.isNull()) {
            return;
        }
        window_.removeEventFilter(this);
        deleteLater();
        // Until the desktop says so, the frame may not have pushed aside what is in it.
        const QPoint inside = window_.geometry().topLeft();
        if (inside == put_ || inside - QPoint(frame.left(), frame.top()) == put_) {
            place_();
        }
    }

    QWidget& window_;
    const QPoint put_;
    const std::function<void()> place_;
};

}  // namespace

void whenFramed(QWidget& window, std::function<void()> place) {
    new FrameWatch(window, std::move(place));
}

}  // namespace velmora
