#include "ui/qt/frm_about.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <memory>

#include "support/accessibility_walk.h"

namespace velmora {

class FrmAboutTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        helps = 0;
        dialog = std::make_unique<frmAbout>(
            "Velmora 0.1.0", "Licences\n",
            frmAbout::Actions{
                [](const QString& capture) { return "a report \xC3\xA9 " + capture.toStdString(); },
                [] { return std::string("a capture"); }});
        dialog->offerHelp([this] { ++helps; });
        dialog->show();
        dialog->activateWindow();
        QTRY_VERIFY(dialog->isActiveWindow());
    }
    void cleanup() { dialog.reset(); }

    void whatVelmoraIsStandsInIt() {
        QCOMPARE(dialog->findChild<QLabel*>("lblProgram")->text(), QString("Velmora 0.1.0"));
        QCOMPARE(dialog->findChild<QPlainTextEdit*>("txtAbout")->toPlainText(), QString("Licences\n"));
    }
    void theReportGoesOntoTheClipboard() {
        click("pbCopyDetails");
        QCOMPARE(QApplication::clipboard()->text(), QString::fromUtf8("a report \xC3\xA9 "));
        QVERIFY(told().startsWith("The report is on the clipboard"));
        QVERIFY(!told().contains("attach"));
    }
    void aSavedCaptureIsNamedInTheReport() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("line.pcapng");
        QVERIFY(dialog->saveCaptureTo(path));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("a capture"));
        QVERIFY(told().endsWith(QDir::toNativeSeparators(path) + "."));
        click("pbCopyDetails");
        QVERIFY(QApplication::clipboard()->text().endsWith(path));
        QVERIFY(told().contains("attach the capture"));
    }
    void aCaptureThatCannotBeSavedIsToldAndNamedNowhere() {
        const QTemporaryDir folder;
        QString words;
        QTimer::singleShot(0, dialog.get(), [&words] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            words = box->text();
            box->accept();
        });
        QVERIFY(!dialog->saveCaptureTo(folder.filePath("missing/line.pcapng")));
        QVERIFY(words.startsWith("The capture could not be saved in"));
        click("pbCopyDetails");
        QVERIFY(!QApplication::clipboard()->text().contains("line.pcapng"));
    }
    void helpIsAskedForByItsButtonAndByItsKey() {
        click("pbHelp");
        QTest::keyClick(dialog->focusWidget(), Qt::Key_F1);
        QCOMPARE(helps, 2);
    }
    void escapeAndCloseCloseIt() {
        click("pbClose");
        QVERIFY(!dialog->isVisible());
        dialog->show();
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
    }
    void itShutsNobodyOut() { QCOMPARE(test::accessibilityFaults(*dialog), QStringList()); }

  private:
    void click(const char* name) {
        QTest::mouseClick(dialog->findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
    }
    QString told() const { return dialog->findChild<QLabel*>("lblTold")->text(); }

    std::unique_ptr<frmAbout> dialog;
    int helps = 0;
};

}  // namespace velmora

QTEST_MAIN(velmora::FrmAboutTest)
#include "frm_about_test.moc"
