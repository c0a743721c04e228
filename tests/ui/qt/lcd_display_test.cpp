// The picture of the Organiser's display.
#include "ui/qt/lcd_display.h"

#include <QImage>
#include <QTest>
#include <memory>
#include <vector>

#include "ui/qt/lcd_line.h"

namespace velmora {
namespace {

class LcdDisplayTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { display = std::make_unique<LcdDisplay>(); }

    void theCellsGrowWithTheRoom_data() {
        QTest::addColumn<double>("wider");
        QTest::addColumn<double>("higher");
        QTest::addColumn<double>("cells");
        QTest::newRow("as small as can be") << 1.0 << 1.0 << 1.0;
        QTest::newRow("half as large again") << 1.5 << 1.5 << 1.5;
        QTest::newRow("twice") << 2.0 << 2.0 << 2.0;
        QTest::newRow("three times") << 3.0 << 3.0 << 3.0;
        QTest::newRow("only wider") << 3.0 << 1.0 << 1.0;
        QTest::newRow("only higher") << 1.0 << 3.0 << 1.0;
        QTest::newRow("twice as wide, much higher") << 2.0 << 5.0 << 2.0;
    }
    void theCellsGrowWithTheRoom() {
        QFETCH(double, wider);
        QFETCH(double, higher);
        QFETCH(double, cells);
        const QSize least = display->sizeHint();
        const int leastCell = display->line(0).leastCellWidth();
        show({static_cast<int>(least.width() * wider), static_cast<int>(least.height() * higher)});
        const int cell = display->line(0).cellWidth();
        // A gap between cells is whole pixels, which may take up to half a pixel of each cell.
        QVERIFY2(cell >= leastCell * cells - 1 && cell <= leastCell * cells + 1, QByteArray::number(cell));
        QCOMPARE(display->line(1).cellWidth(), cell);
        QCOMPARE(display->sizeHint(), least);
    }
    void bothLinesStandInTheMiddleOfTheirFrame() {
        show(display->sizeHint() * 2 + QSize(40, 60));
        const QRect upper = display->line(0).geometry();
        const QRect lower = display->line(1).geometry();
        QCOMPARE(lower.topLeft(), upper.bottomLeft() + QPoint(0, 1));
        QCOMPARE(lower.size(), upper.size());
        const QRect glass = upper.united(lower);
        QVERIFY(display->rect().adjusted(20, 20, -20, -20).contains(glass));
        QVERIFY(qAbs(glass.center().x() - display->rect().center().x()) <= 1);
        QVERIFY(qAbs(glass.center().y() - display->rect().center().y()) <= 1);
    }
    void itShrinksAsFarAsItGrew() {
        const QSize least = display->sizeHint();
        show(least * 3);
        const int large = display->line(0).cellWidth();
        const QFont largeFont = display->line(0).font();
        display->resize(least);
        QVERIFY(display->line(0).cellWidth() < large);
        QCOMPARE(display->line(0).cellWidth(), display->line(0).leastCellWidth());
        QVERIFY(display->line(0).font().pointSizeF() < largeFont.pointSizeF());
    }
    void lettersGrowWithTheirCells() {
        const QFont least = display->line(0).font();
        show(display->sizeHint() * 2);
        const double cells = double(display->line(0).cellWidth()) / double(display->line(0).leastCellWidth());
        QVERIFY(qAbs(display->line(0).font().pointSizeF() / least.pointSizeF() - cells) < 0.01);
    }
    void gapsAreEvenAndWholePixelsAtEachLargerSize_data() {
        QTest::addColumn<int>("percent");
        for (const int percent : {130, 150, 177, 200, 250, 300}) {
            QTest::newRow(QByteArray::number(percent).constData()) << percent;
        }
    }
    void gapsAreEvenAndWholePixelsAtEachLargerSize() {
        QFETCH(int, percent);
        show(display->sizeHint() * percent / 100);
        const QImage line = display->line(0).grab().toImage();
        const int middle = line.height() / 2;
        // An empty line has the colours of the glass and of the cells, and nothing between them.
        std::vector<int> runs;
        for (int x = 0; x < line.width(); ++x) {
            if (x == 0 || line.pixel(x, middle) != line.pixel(x - 1, middle)) {
                runs.push_back(0);
            }
            ++runs.back();
        }
        // The margin, then cells and gaps in turn, then the margin.
        QCOMPARE(runs.size(), std::size_t{2 * LcdLine::kColumns + 1});
        QCOMPARE(runs.front(), runs.back());
        for (std::size_t i = 3; i + 1 < runs.size(); ++i) {
            QCOMPARE(runs[i], runs[i - 2]);
        }
        QCOMPARE(runs[1], qRound(display->line(0).cellWidth() * line.devicePixelRatio()));
    }

  private:
    void show(const QSize& size) {
        display->resize(size);
        display->show();
    }

    std::unique_ptr<LcdDisplay> display;
};

}  // namespace
}  // namespace velmora

QTEST_MAIN(velmora::LcdDisplayTest)
#include "lcd_display_test.moc"
