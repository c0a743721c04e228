// The window's place between runs.
#include "ui/qt/window_position.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

namespace velmora {
namespace {

class WindowPositionTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() {
        auto* contents = new QWidget(&window);
        contents->setMinimumSize(300, 200);
        auto* layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        layout->addWidget(contents);
    }
    void init() {
        QFile::remove(file());
        window.setGrownSize({0, 0});
    }

    void valuesComeBack();
    void firstStartCentres();
    void placeComesBack_data();
    void placeComesBack();
    void placeBetweenTwoPixelsIsTheLowerOne();
    void minimisedWindowIsStoredWhereItStood();
    void sizeComesBack();
    void sizeOfALargerScreenIsBroughtOntoThisOne();
    void maximisedWindowIsStoredInItsOwnSize();

  private:
    QString file() const { return folder.filePath(QStringLiteral("Velmora.conf")); }
    void save() {
        QtPositionStore store(file());
        QtWindowGeometry geometry(window);
        Registry(store).SaveWindowPos(geometry);
        Registry(store).SaveWindowSize(geometry);
    }
    void load() {
        QtPositionStore store(file());
        QtWindowGeometry geometry(window);
        Registry(store).LoadWindowSize(geometry);
        Registry(store).LoadWindowPos(geometry);
    }
    QPoint centre() const {
        const QSize screen = QGuiApplication::primaryScreen()->size();
        return {(screen.width() - 300) / 2, (screen.height() - 200) / 2};
    }

    QTemporaryDir folder;
    GrowingWindow window;
};

void WindowPositionTest::valuesComeBack() {
    QtPositionStore store(file());
    QVERIFY(!store.read("XPos"));
    QVERIFY(store.write("XPos", std::uint32_t{4'294'965'046}));
    QVERIFY(store.write("YPos", std::string()));
    QtPositionStore again(file());
    QCOMPARE(std::get<std::uint32_t>(again.read("XPos").value()), std::uint32_t{4'294'965'046});
    QCOMPARE(std::get<std::string>(again.read("YPos").value()), std::string());
    again.deleteAll();
    QVERIFY(!again.read("XPos"));
}

void WindowPositionTest::firstStartCentres() {
    window.move(3, 4);
    load();
    QCOMPARE(window.pos(), centre());
}

void WindowPositionTest::placeComesBack_data() {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    QTest::addColumn<QPoint>("left");
    QTest::addColumn<QPoint>("restored");
    QTest::newRow("inside") << QPoint(40, 50) << QPoint(40, 50);
    QTest::newRow("a little off") << QPoint(-10, -10) << QPoint(-10, -10);
    QTest::newRow("far off to the left") << QPoint(-20, 50) << QPoint(centre().x(), 50);
    QTest::newRow("far off above") << QPoint(40, -20) << QPoint(40, centre().y());
    QTest::newRow("off to the right") << QPoint(screen.width() - 267, 50) << QPoint(screen.width() - 300, 50);
    QTest::newRow("off below") << QPoint(40, screen.height() - 100) << QPoint(40, screen.height() - 200);
}

void WindowPositionTest::placeComesBack() {
    QFETCH(QPoint, left);
    QFETCH(QPoint, restored);
    window.move(left);
    save();
    window.move(1, 1);
    load();
    QCOMPARE(window.pos(), restored);
}

void WindowPositionTest::placeBetweenTwoPixelsIsTheLowerOne() {
    QtWindowGeometry geometry(window);
    geometry.setLeft(-16);
    geometry.setTop(16);
    QCOMPARE(window.pos(), QPoint(-2, 1));
}

void WindowPositionTest::minimisedWindowIsStoredWhereItStood() {
    window.move(70, 80);
    window.show();
    window.showMinimized();
    save();
    QVERIFY(!window.isMinimized());
    window.move(1, 1);
    load();
    QCOMPARE(window.pos(), QPoint(70, 80));
    window.hide();
}

void WindowPositionTest::sizeComesBack() {
    window.move(20, 30);
    window.setGrownSize({420, 310});
    save();
    window.setGrownSize({0, 0});
    load();
    QCOMPARE(window.size(), QSize(420, 310));
    QCOMPARE(window.pos(), QPoint(20, 30));
    // A window that is as small as it can be stays so.
    window.setGrownSize({0, 310});
    save();
    load();
    QCOMPARE(window.grownSize(), QSize(0, 310));
}

void WindowPositionTest::sizeOfALargerScreenIsBroughtOntoThisOne() {
    QtPositionStore store(file());
    store.write("XPos", std::uint32_t{1500 * 15});
    store.write("YPos", std::uint32_t{900 * 15});
    store.write("Width", std::uint32_t{3000 * 15});
    store.write("Height", std::uint32_t{2000 * 15});
    load();
    QVERIFY2(QGuiApplication::primaryScreen()->geometry().contains(window.frameGeometry()),
             qPrintable(QStringLiteral("%1 x %2").arg(window.width()).arg(window.height())));
    QVERIFY(window.width() > 300 && window.height() > 200);
}

void WindowPositionTest::maximisedWindowIsStoredInItsOwnSize() {
    window.move(70, 80);
    window.setGrownSize({420, 310});
    window.show();
    window.showMaximized();
    QTRY_VERIFY(window.width() > 420);
    save();
    QVERIFY(!window.isMaximized());
    window.hide();
    window.move(1, 1);
    window.setGrownSize({0, 0});
    load();
    QCOMPARE(window.size(), QSize(420, 310));
}

}  // namespace
}  // namespace velmora

QTEST_MAIN(velmora::WindowPositionTest)
#include "window_position_test.moc"
