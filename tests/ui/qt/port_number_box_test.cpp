// What the box for the number of a port takes.
#include "ui/qt/port_number_box.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <memory>

namespace velmora {

class PortNumberBoxTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        box = std::make_unique<PortNumberBox>();
        refused = std::make_unique<QSignalSpy>(box.get(), &PortNumberBox::keyRefused);
    }
    void otherKeysAreRefusedOneByOne() {
        QTest::keyClicks(box.get(), "1a-+ b2");
        QCOMPARE(box->text(), QString("12"));
        QCOMPARE(refused->count(), 5);
    }
    void theEditingKeysCodesLetTheirCharactersThrough() {
        QTest::keyClicks(box.get(), "%&'(.");
        QCOMPARE(box->text(), QString("%&'(."));
        QTest::keyClick(box.get(), Qt::Key_Left);
        QTest::keyClick(box.get(), Qt::Key_Delete);
        QCOMPARE(box->text(), QString("%&'("));
        QCOMPARE(refused->count(), 0);
    }
    void theKeysOfTheClipboardWork() {
        QTest::keyClicks(box.get(), "12");
        QTest::keyClick(box.get(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(box->selectedText(), QString("12"));
        QTest::keyClick(box.get(), Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(box.get(), Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(box->text(), QString());
        QTest::keyClick(box.get(), Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(box.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(box->text(), QString("1212"));
        QTest::keyClick(box.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(box->text(), QString("12"));
        QCOMPARE(refused->count(), 0);
    }
    void onlyWhatMayBeTypedIsPasted() {
        QGuiApplication::clipboard()->setText("COM7");
        QTest::keyClick(box.get(), Qt::Key_Insert, Qt::ShiftModifier);
        QCOMPARE(box->text(), QString());
        QGuiApplication::clipboard()->setText("17");
        QTest::keyClick(box.get(), Qt::Key_Insert, Qt::ShiftModifier);
        QCOMPARE(box->text(), QString("17"));
    }
    void onlyTheLeftButtonIsAPress() {
        const QSignalSpy pressed(box.get(), &PortNumberBox::pressed);
        QTest::mousePress(box.get(), Qt::RightButton);
        QCOMPARE(pressed.count(), 0);
        QTest::mousePress(box.get(), Qt::LeftButton);
        QCOMPARE(pressed.count(), 1);
    }
    void whoHearsOfAPressMayOpenTheBoxForIt() {
        box->setText("123");
        box->setReadOnly(true);
        connect(box.get(), &PortNumberBox::pressed, box.get(), [this] { box->setReadOnly(false); });
        QTest::mouseClick(box.get(), Qt::LeftButton);
        QTest::keyClick(box.get(), Qt::Key_Home);
        QTest::keyClicks(box.get(), "9");
        QCOMPARE(box->text(), QString("9123"));
    }

  private:
    std::unique_ptr<PortNumberBox> box;
    std::unique_ptr<QSignalSpy> refused;
};

}  // namespace velmora

QTEST_MAIN(velmora::PortNumberBoxTest)
#include "port_number_box_test.moc"
