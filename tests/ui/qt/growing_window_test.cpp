// Windows that are as large as their contents, or as their user, want them.
#include "ui/qt/growing_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <memory>

namespace velmora {
namespace {

constexpr QSize kLeast(300, 200);

class GrowingWindowTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        window = std::make_unique<GrowingWindow>();
        contents = new QWidget(window.get());
        contents->setFixedSize(kLeast);
        auto* layout = new QVBoxLayout(window.get());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        layout->addWidget(contents);
    }

    void isAsSmallAsItCanBeUnlessItsUserWantsOtherwise() {
        window->show();
        QCOMPARE(window->size(), kLeast);
        QCOMPARE(window->minimumSize(), kLeast);
        QCOMPARE(window->grownSize(), QSize(0, 0));
    }
    void remembersTheSizeOnEachAxisThatItsUserMadeLarger() {
        window->show();
        QSignalSpy resized(window.get(), &GrowingWindow::resizedByUser);
        window->resize(500, kLeast.height());
        QCOMPARE(window->grownSize(), QSize(500, 0));
        window->resize(500, 400);
        QCOMPARE(window->grownSize(), QSize(500, 400));
        window->resize(kLeast.width(), 400);
        QCOMPARE(window->grownSize(), QSize(0, 400));
        QCOMPARE(resized.count(), 3);
    }
    void hasItsSizeFromTheStartAndTellsNobody() {
        QSignalSpy resized(window.get(), &GrowingWindow::resizedByUser);
        window->setGrownSize({500, 400});
        QCOMPARE(window->size(), QSize(500, 400));
        window->show();
        QCOMPARE(window->size(), QSize(500, 400));
        QCOMPARE(window->grownSize(), QSize(500, 400));
        QCOMPARE(resized.count(), 0);
    }
    void isNeverTooSmallForItsContents() {
        window->setGrownSize({500, 20});
        QCOMPARE(window->size(), QSize(500, kLeast.height()));
    }
    void growsWithItsContentsAndGoesBackAfterwards_data() {
        QTest::addColumn<QSize>("wanted");
        QTest::addColumn<QSize>("meanwhile");
        QTest::addColumn<QSize>("afterwards");
        QTest::newRow("as small as can be") << QSize(0, 0) << QSize(300, 350) << kLeast;
        QTest::newRow("larger, not enough") << QSize(400, 300) << QSize(400, 350) << QSize(400, 300);
        QTest::newRow("large enough") << QSize(400, 380) << QSize(400, 380) << QSize(400, 380);
    }
    void growsWithItsContentsAndGoesBackAfterwards() {
        QFETCH(QSize, wanted);
        QFETCH(QSize, meanwhile);
        QFETCH(QSize, afterwards);
        window->setGrownSize(wanted);
        window->show();
        contents->setFixedHeight(350);
        QTRY_COMPARE(window->size(), meanwhile);
        QCOMPARE(window->grownSize(), wanted);
        contents->setFixedHeight(kLeast.height());
        QTRY_COMPARE(window->size(), afterwards);
    }
    void isLaidOutBeforeItIsShown() {
        contents->setMinimumSize(kLeast);
        contents->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        window->setGrownSize({500, 400});
        QCOMPARE(contents->size(), QSize(500, 400));
    }
    void aMaximisedOrMinimisedSizeIsNotItsOwn() {
        window->setGrownSize({500, 400});
        window->show();
        for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowFullScreen, Qt::WindowMinimized}) {
            window->setWindowState(state);
            QCoreApplication::processEvents();
            const QSize made = window->size();
            QCOMPARE(window->grownSize(), QSize(500, 400));
            // New contents leave it as large as the desktop has made it.
            contents->setFixedHeight(contents->height() + 1);
            QCoreApplication::processEvents();
            QCOMPARE(window->size(), made);
            window->setWindowState(Qt::WindowNoState);
            window->setGrownSize({500, 400});
        }
    }
    void aDesktopMayResizeItBeforeItSaysThatItIsMaximised() {
        window->setGrownSize({500, 400});
        window->show();
        const QSize room = QGuiApplication::primaryScreen()->availableSize();
        window->resize(room);
        QCOMPARE(window->grownSize(), room);
        window->setWindowState(Qt::WindowMaximized);
        QCOMPARE(window->grownSize(), QSize(500, 400));
    }
    void maximisingItKeepsTheSizeThatItHad() {
        window->show();
        window->resize(500, 400);
        window->setWindowState(Qt::WindowMaximized);
        QCOMPARE(window->grownSize(), QSize(500, 400));
    }
    void withoutContentsItIsAnyWindow() {
        GrowingWindow empty;
        empty.resize(120, 90);
        empty.show();
        QCOMPARE(empty.size(), QSize(120, 90));
    }

  private:
    std::unique_ptr<GrowingWindow> window;
    QWidget* contents = nullptr;  // owned by the window
};

}  // namespace
}  // namespace velmora

QTEST_MAIN(velmora::GrowingWindowTest)
#include "growing_window_test.moc"
