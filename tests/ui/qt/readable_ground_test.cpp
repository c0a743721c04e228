// The grounds of marks on light and dark desktops.
#include "ui/qt/readable_ground.h"

#include <QTest>

namespace velmora {

class ReadableGroundTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aMarkThatCanBeReadStaysOnTheDesktopsGround() {
        QCOMPARE(readableGround(QColor(0, 128, 0), QColor(239, 239, 239)), QColor(239, 239, 239));
        QCOMPARE(readableGround(QColor(255, 128, 0), QColor(42, 42, 46)), QColor(42, 42, 46));
    }
    void aDarkMarkOnADarkDesktopGetsAWhiteGround() {
        QCOMPARE(readableGround(QColor(192, 0, 0), QColor(42, 42, 46)), QColor(Qt::white));
    }
    void aBrightMarkThatADarkDesktopSwallowsGetsABlackGround() {
        QCOMPARE(readableGround(QColor(255, 0, 0), QColor(80, 80, 80)), QColor(Qt::black));
    }
    void aBrightMarkOnALightDesktopOnlyHasToBeSeen() {
        QCOMPARE(readableGround(QColor(255, 128, 0), QColor(239, 239, 239)), QColor(239, 239, 239));
    }
};

}  // namespace velmora

QTEST_MAIN(velmora::ReadableGroundTest)
#include "readable_ground_test.moc"
