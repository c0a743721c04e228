#include "ui/qt/file_drop.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

class FileDropTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        taken.clear();
        data.clear();
        window = std::make_unique<QWidget>();
        new FileDrop(*window, [this](const std::vector<std::string>& paths) { taken = paths; });
    }
    void cleanup() { window.reset(); }

    void takesFilesOnceTheDropIsOver() {
        data.setUrls({QUrl::fromLocalFile("/home/a b.odb"), QUrl::fromLocalFile("/home/things")});
        QVERIFY(dragged<QDragEnterEvent>());
        QVERIFY(dragged<QDragMoveEvent>());
        QCOMPARE(taken.size(), std::size_t{0});
        QVERIFY(dropped());
        QCOMPARE(taken.size(), std::size_t{0});
        QTRY_COMPARE(taken, (std::vector<std::string>{"/home/a b.odb", "/home/things"}));
    }
    void filesThatWouldBeMovedAreCopied() {
        data.setUrls({QUrl::fromLocalFile("/home/a.odb")});
        QDragEnterEvent event({5, 5}, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, {});
        event.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(window.get(), &event);
        QVERIFY(event.isAccepted());
        QCOMPARE(event.dropAction(), Qt::CopyAction);
    }
    void whatCanOnlyBeMovedIsRefused() {
        data.setUrls({QUrl::fromLocalFile("/home/a.odb")});
        QVERIFY(!dropped(Qt::MoveAction));
    }
    void whatIsNoFileOfThisComputerIsRefused() {
        data.setText("text");
        QVERIFY(!dragged<QDragEnterEvent>());
        QVERIFY(!dropped());
        data.setUrls({QUrl("https://example.com/a.odb")});
        QVERIFY(!dragged<QDragEnterEvent>());
        QVERIFY(!dropped());
        QCoreApplication::processEvents();
        QCOMPARE(taken.size(), std::size_t{0});
    }
    void aWindowThatIsGoneTakesNothing() {
        data.setUrls({QUrl::fromLocalFile("/home/a.odb")});
        QVERIFY(dropped());
        window.reset();
        QCoreApplication::processEvents();
        QCOMPARE(taken.size(), std::size_t{0});
    }

  private:
    template <typename Event>
    bool dragged() {
        Event event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &event);
        return event.isAccepted();
    }
    /// The toolkit hands a drop to the window only where its drag was taken.
    bool dropped(Qt::DropActions actions = Qt::CopyAction) {
        QDragEnterEvent enter({5, 5}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDropEvent event({5, 5}, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &event);
        return event.isAccepted();
    }

    std::unique_ptr<QWidget> window;
    QMimeData data;
    std::vector<std::string> taken;
};

}  // namespace velmora

using velmora::FileDropTest;
QTEST_MAIN(FileDropTest)
#include "file_drop_test.moc"
