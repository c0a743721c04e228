// The window's place between runs.
#include "ui/qt/window_position.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

namespace velmora {
namespace {

class WindowPositionTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        QFile::remove(file());
        window.setFixedSize(300, 200);
    }

    void valuesComeBack();
    void firstStartCentres();
    void placeComesBack_data();
    void placeComesBack();
    void placeBetweenTwoPixelsIsTheLowerOne();
    void minimisedWindowIsStoredWhereItStood();

  private:
    QString file() const { return folder.filePath(QStringLiteral("Velmora.conf")); }
    void save() {
        QtPositionStore store(file());
        QtWindowGeometry geometry(window);
        Registry(store).SaveWindowPos(geometry);
    }
    void load() {
        QtPositionStore store(file());
        QtWindowGeometry geometry(window);
        Registry(store).LoadWindowPos(geometry);
    }
    QPoint centre() const {
        const QSize screen = QGuiApplication::primaryScreen()->size();
        return {(screen.width() - 300) / 2, (screen.height() - 200) / 2};
    }

    QTemporaryDir folder;
    QWidget window;
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

}  // namespace
}  // namespace velmora

QTEST_MAIN(velmora::WindowPositionTest)
#include "window_position_test.moc"
