// The check of a cable while its steps are done, and what its buttons do.
#include "ui/qt/frm_cable_check.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <functional>
#include <memory>

#include "doctor/stoppable_line.h"
#include "support/accessibility_walk.h"

namespace velmora {

class FrmCableCheckTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        examinations = 0;
        amid = nullptr;
        dialog = std::make_unique<frmCableCheck>(
            "/dev/ttyUSB0", LineSettings(),
            [this](StepObserver& observer, const std::function<bool()>& stopWanted) {
                return examine(observer, stopWanted);
            });
    }
    void cleanup() { dialog.reset(); }

    void theStepsTickOffBeforeTheCauseAndWhatHelps() {
        amid = [this] {
            QCOMPARE(steps()->rowCount(), 1);
            QCOMPARE(cell(0, 0), QStringLiteral("\u2713 ok"));
            QCOMPARE(cell(0, 1), QStringLiteral("The device is set to 9600 baud."));
            QVERIFY(find<QProgressBar>("pbrBusy")->isVisible());
            QVERIFY(!find<QLabel>("lblResult")->isVisible());
            QVERIFY(!button("pbCopy")->isEnabled());
            QCOMPARE(dialog->focusWidget(), button("pbClose"));
            isForEverybody();
        };
        dialog->show();
        QTRY_COMPARE(steps()->rowCount(), 2);
        QCOMPARE(cell(1, 0), QStringLiteral("\u2717 FAULT"));
        QVERIFY(steps()->item(1, 1)->font().bold());
        QVERIFY(!find<QProgressBar>("pbrBusy")->isVisible());
        QCOMPARE(find<QLabel>("lblResult")->text(), QStringLiteral("Nothing comes from the Organiser."));
        QVERIFY(find<QLabel>("lblAdvice")->text().startsWith(QStringLiteral("Start a transfer")));
        QVERIFY(find<QLabel>("lblWhat")->text().startsWith(QStringLiteral("/dev/ttyUSB0 at 9600 baud.")));
        isForEverybody();
    }
    void shownOnceMoreItChecksNothingByItself() {
        dialog->show();
        QTRY_VERIFY(button("pbCopy")->isEnabled());
        dialog->hide();
        dialog->show();
        QCoreApplication::processEvents();
        QCOMPARE(examinations, 1);
    }
    void theResultIsOneLineForTheClipboard() {
        dialog->show();
        QTRY_VERIFY(button("pbCopy")->isEnabled());
        QTest::mouseClick(button("pbCopy"), Qt::LeftButton);
        const QString line = QGuiApplication::clipboard()->text();
        QVERIFY2(line.startsWith(QStringLiteral("Cable check: silence, 60 % sure.")), qPrintable(line));
        QVERIFY(!line.contains('\n'));
    }
    void stopEndsTheCheckWhichCanBeMadeAgain() {
        amid = [this] {
            QTest::mouseClick(button("pbStop"), Qt::LeftButton);
            QVERIFY(!button("pbStop")->isEnabled());
            amid = nullptr;
        };
        dialog->show();
        QTRY_COMPARE(find<QLabel>("lblResult")->text(), QStringLiteral("The check was stopped."));
        QVERIFY(dialog->isVisible());
        QCOMPARE(steps()->rowCount(), 1);
        QCOMPARE(button("pbStop")->text(), QStringLiteral("Check a&gain"));
        QTest::mouseClick(button("pbStop"), Qt::LeftButton);
        QTRY_COMPARE(steps()->rowCount(), 2);
        QCOMPARE(examinations, 2);
    }
    void closingEndsTheCheckBeforeTheDialog_data() {
        QTest::addColumn<bool>("byItsButton");
        QTest::newRow("Close") << true;
        QTest::newRow("Esc") << false;
    }
    void closingEndsTheCheckBeforeTheDialog() {
        QFETCH(bool, byItsButton);
        amid = [&] {
            if (byItsButton) {
                QTest::mouseClick(button("pbClose"), Qt::LeftButton);
            } else {
                QTest::keyClick(dialog.get(), Qt::Key_Escape);
            }
            QVERIFY(dialog->isVisible());
        };
        dialog->show();
        QTRY_VERIFY(!dialog->isVisible());
        QCOMPARE(examinations, 1);
        QCOMPARE(steps()->rowCount(), 1);
    }
    void aDialogThatIsClosedAtOnceChecksNothing() {
        dialog->show();
        dialog->reject();
        QCoreApplication::processEvents();
        QCOMPARE(examinations, 0);
    }

  private:
    Diagnosis examine(StepObserver& observer, const std::function<bool()>& stopWanted) {
        ++examinations;
        observer.found({DoctorStep::Settings, StepStatus::Well, "The device is set to 9600 baud."});
        if (amid) {
            amid();
        }
        if (stopWanted()) {
            throw ExaminationStopped();
        }
        observer.found({DoctorStep::Listening, StepStatus::Fault, "Nothing comes."});
        return {{Cause::Silence, 60, {}}, {}};
    }
    template <typename Control>
    Control* find(const char* name) {
        return dialog->findChild<Control*>(name);
    }
    QPushButton* button(const char* name) { return find<QPushButton>(name); }
    QTableWidget* steps() { return find<QTableWidget>("tblSteps"); }
    QString cell(int row, int column) { return steps()->item(row, column)->text(); }
    void isForEverybody() {
        const QStringList faults = test::accessibilityFaults(*dialog);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    int examinations = 0;
    std::function<void()> amid;
    std::unique_ptr<frmCableCheck> dialog;
};

}  // namespace velmora

QTEST_MAIN(velmora::FrmCableCheckTest)
#include "frm_cable_check_test.moc"
