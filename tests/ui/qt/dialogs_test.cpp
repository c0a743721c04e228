#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "support/accessibility_walk.h"
#include "support/scripted_port.h"
#include "ui/qt/frm_setup.h"

namespace velmora {

class DialogsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void okTakesTheTypedPortOver() {
        frmSetup dialog(port, options, transfer, probe(), {});
        dialog.show();
        auto* text = dialog.findChild<QLineEdit*>("txtPortNo");
        auto* ok = dialog.findChild<QPushButton*>("pbOK");
        QTRY_VERIFY(ok->isEnabled());
        dialog.findChild<QRadioButton*>("obPort_5")->click();
        QVERIFY(!ok->isEnabled());
        QTest::keyClicks(text, "7x");
        QCOMPARE(text->text(), QString("7"));
        ok->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(port.number, std::int16_t(7));
    }
    void cancelBeforeAndAfterProbingKeepsThePort() {
        port.number = 3;
        frmSetup early(port, options, transfer, probe(), {});
        early.reject();
        QCOMPARE(port.number, std::int16_t(3));
        frmSetup late(port, options, transfer, probe(), {});
        late.show();
        QTRY_VERIFY(late.findChild<QPushButton*>("pbOK")->isEnabled());
        late.findChild<QPushButton*>("pbCancel")->click();
        QCOMPARE(port.number, std::int16_t(3));
        QVERIFY(!late.isVisible());
    }
    void withoutAListOfDevicesNoneIsShown() {
        frmSetup dialog(port, options, transfer, probe(), {});
        dialog.refreshDevices();
        QCOMPARE(dialog.findChild<QComboBox*>("cboPresentPorts")->count(), 0);
    }
    void setupShutsNobodyOut() {
        frmSetup dialog(port, options, transfer, probe(), {});
        dialog.show();
        QTRY_VERIFY(dialog.findChild<QPushButton*>("pbOK")->isEnabled());
        QCOMPARE(test::accessibilityFaults(dialog), QStringList());
    }

  private:
    SetupModel::Probe probe() {
        return [this](std::int16_t number) {
            port.number = number;
            return std::int32_t(kStatusAvailable);
        };
    }

    test::ScriptedPort port;
    ServerOptions options;
    TransferSettings transfer;
};

}  // namespace velmora

QTEST_MAIN(velmora::DialogsTest)
#include "dialogs_test.moc"
