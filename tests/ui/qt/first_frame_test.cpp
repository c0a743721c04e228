// A window at its first start: a display of the test's own, and what a window manager does there.
#include "ui/qt/first_frame.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>
#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "support/own_display.h"
#include "ui/qt/window_position.h"

namespace velmora {
namespace {

constexpr QMargins kFrame(6, 26, 6, 8);
constexpr QSize kInside(300, 200);

/// Tells windows of their frames, as a window manager does that draws them.
class WindowManager {
  public:
    WindowManager()
        : display_(xcb_connect(nullptr, nullptr)),
          root_(xcb_setup_roots_iterator(xcb_get_setup(display_)).data->root),
          extents_(atom("_NET_FRAME_EXTENTS")) {
        xcb_change_property(display_, XCB_PROP_MODE_REPLACE, root_, atom("_NET_SUPPORTED"), XCB_ATOM_ATOM, 32,
                            1, &extents_);
        sync();
    }
    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;
    ~WindowManager() { xcb_disconnect(display_); }

    /// Puts a frame around a window, whose upper left corner then stands where the window's stood.
    void frame(const QWidget& window) { frame(window, window.geometry().topLeft()); }
    void frame(const QWidget& window, const QPoint& corner) {
        const auto id = static_cast<xcb_window_t>(window.winId());
        const std::array<std::uint32_t, 4> sides = {
            static_cast<std::uint32_t>(kFrame.left()), static_cast<std::uint32_t>(kFrame.right()),
            static_cast<std::uint32_t>(kFrame.top()), static_cast<std::uint32_t>(kFrame.bottom())};
        xcb_change_property(display_, XCB_PROP_MODE_REPLACE, id, extents_, XCB_ATOM_CARDINAL, 32,
                            sides.size(), sides.data());
        const std::array<std::uint32_t, 2> place = {static_cast<std::uint32_t>(corner.x() + kFrame.left()),
                                                    static_cast<std::uint32_t>(corner.y() + kFrame.top())};
        xcb_configure_window(display_, id, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, place.data());
        sync();
    }

  private:
    xcb_atom_t atom(std::string_view name) {
        const auto cookie =
            xcb_intern_atom(display_, 0, static_cast<std::uint16_t>(name.size()), name.data());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
            xcb_intern_atom_reply(display_, cookie, nullptr), &std::free);
        return reply->atom;
    }
    void sync() { std::free(xcb_get_input_focus_reply(display_, xcb_get_input_focus(display_), nullptr)); }

    xcb_connection_t* display_;
    xcb_window_t root_;
    xcb_atom_t extents_;
};

}  // namespace

class FirstFrameTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        window = std::make_unique<GrowingWindow>();
        window->resize(kInside);
        placed = 0;
    }

    void theFirstCentringCountsTheFrame() {
        placeAndShow();
        const QSize screen = QGuiApplication::primaryScreen()->size();
        QCOMPARE(window->pos(), inTheMiddle(kInside));
        manager_.frame(*window);
        const QSize framed = kInside.grownBy(kFrame);
        QTRY_COMPARE(window->frameGeometry(), QRect(inTheMiddle(framed), framed));
        QCOMPARE(window->geometry().center().y() - screen.height() / 2,
                 (kFrame.top() - kFrame.bottom()) / 2 - 1);
        QCOMPARE(placed, 1);
    }
    void whoMovesTheWindowAfterwardsIsLeftAlone() {
        placeAndShow();
        manager_.frame(*window);
        QTRY_COMPARE(placed, 1);
        window->move(40, 50);
        QTRY_COMPARE(window->frameGeometry().topLeft(), QPoint(40, 50));
        QCoreApplication::processEvents();
        QCOMPARE(placed, 1);
        QCOMPARE(window->frameGeometry().topLeft(), QPoint(40, 50));
    }
    void whereTheDesktopPlacesTheWindowItStays() {
        placeAndShow();
        manager_.frame(*window, {100, 90});
        QTRY_COMPARE(window->frameGeometry().topLeft(), QPoint(100, 90));
        window->update();
        QCoreApplication::processEvents();
        QCOMPARE(placed, 0);
        QCOMPARE(window->frameGeometry().topLeft(), QPoint(100, 90));
    }
    void aWindowThatWasMovedBeforeItHadAFrameStays() {
        placeAndShow();
        window->move(40, 50);
        QCoreApplication::processEvents();
        manager_.frame(*window);
        QTRY_COMPARE(window->frameGeometry().topLeft(), QPoint(40, 50));
        QCOMPARE(placed, 0);
    }

  private:
    static QPoint inTheMiddle(const QSize& size) {
        const QSize screen = QGuiApplication::primaryScreen()->size();
        return {(screen.width() - size.width()) / 2, (screen.height() - size.height()) / 2};
    }
    /// As the program does at a first start.
    void placeAndShow() {
        const auto load = [this] {
            QtPositionStore store(folder.filePath(QStringLiteral("none.conf")));
            QtWindowGeometry geometry(*window);
            Registry(store).LoadWindowPos(geometry);
        };
        load();
        whenFramed(*window, [this, load] {
            ++placed;
            load();
        });
        window->show();
        while (!window->windowHandle()->isExposed()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    WindowManager manager_;
    QTemporaryDir folder;
    std::unique_ptr<GrowingWindow> window;
    int placed = 0;
};

}  // namespace velmora

int main(int argc, char* argv[]) {
    return velmora::test::runOnOwnDisplay<velmora::FirstFrameTest>(argc, argv);
}
#include "first_frame_test.moc"
