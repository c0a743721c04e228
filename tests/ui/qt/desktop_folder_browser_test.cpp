// Folders chosen in the desktop's own dialog, with stand-ins for it and for the box that tells of a fault.
#include "ui/qt/desktop_folder_browser.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "ui/qt/native_folder_browser.h"

namespace velmora {
namespace {

class DesktopFolderBrowserTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        asked.clear();
        titles.clear();
        faults.clear();
        answers.clear();
        QVERIFY(QDir(place.path()).mkpath(QStringLiteral("inner")));
        QFile file(place.filePath(QStringLiteral("plain.txt")));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void theChosenFolderIsReturned() {
        answers = {place.filePath(QStringLiteral("inner"))};
        QCOMPARE(browse(), place.filePath(QStringLiteral("inner")).toStdString());
        QCOMPARE(titles, QStringList({QStringLiteral("Velmora - Select folder")}));
        QCOMPARE(asked, QStringList({place.path()}));
        QVERIFY(faults.isEmpty());
    }
    void aCancelIsEmpty() {
        answers = {QString()};
        QCOMPARE(browse(), std::string());
        QVERIFY(faults.isEmpty());
    }
    void whatIsNoFolderIsToldAndAskedForAgain() {
        const QString file = place.filePath(QStringLiteral("plain.txt"));
        const QString missing = place.filePath(QStringLiteral("inner/missing"));
        answers = {file, missing, place.filePath(QStringLiteral("inner"))};
        QCOMPARE(browse(), place.filePath(QStringLiteral("inner")).toStdString());
        QCOMPARE(faults, QStringList({file + QStringLiteral(" is no folder to choose"),
                                      missing + QStringLiteral(" is no folder to choose")}));
        QCOMPARE(asked, QStringList({place.path(), place.path(), place.filePath(QStringLiteral("inner"))}));
    }
    void afterAFaultTheUserMayGiveUp() {
        answers = {place.filePath(QStringLiteral("missing")), QString()};
        QCOMPARE(browse(), std::string());
        QCOMPARE(faults.size(), qsizetype{1});
    }
    void withoutACaptionThePromptIsTheTitle() {
        answers = {QString()};
        browseOnDesktop(nullptr, {"", "Which one?", "/"}, standIn());
        QCOMPARE(titles, QStringList({QStringLiteral("Which one?")}));
    }
    void thisPlatformHasNoDialogOfItsOwnSoOursIsShown() {
        QVERIFY(!desktopHasFolderDialog());
        QWidget window;
        bool ours = false;
        QTimer::singleShot(0, this, [&ours] {
            QWidget* dialog = QApplication::activeModalWidget();
            ours = dialog->findChild<QWidget*>(QStringLiteral("lblPrompt")) != nullptr;
            dialog->close();
        });
        QCOMPARE(browseForFolderOver(window, {"Caption", "Which one?", place.path().toStdString()}),
                 std::string());
        QVERIFY(ours);
    }
    void theDialogOfThePlatformIsAskedForAFolder_data() {
        QTest::addColumn<bool>("accepted");
        QTest::newRow("chosen") << true;
        QTest::newRow("cancelled") << false;
    }
    void theDialogOfThePlatformIsAskedForAFolder() {
        QFETCH(bool, accepted);
        QString title;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            title = dialog->windowTitle();
            QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly));
            QVERIFY(!dialog->testOption(QFileDialog::DontUseNativeDialog));
            qobject_cast<QDialog*>(dialog)->done(accepted ? QDialog::Accepted : QDialog::Rejected);
        });
        const QString chosen = desktopFolderDialog().ask(nullptr, QStringLiteral("Caption"), place.path());
        QCOMPARE(chosen, accepted ? QDir(place.path()).absolutePath() : QString());
        QCOMPARE(title, QStringLiteral("Caption"));
    }
    void theEndOfTheProgramEndsTheQuestion() {
        QString chosen = QStringLiteral("none yet");
        QTimer::singleShot(0, this, [&chosen, this] {
            chosen = desktopFolderDialog().ask(nullptr, QStringLiteral("Caption"), place.path());
        });
        QTimer::singleShot(0, this, [] { QCoreApplication::exit(0); });
        QCoreApplication::exec();
        QTRY_COMPARE(chosen, QString());
    }
    void aFaultIsToldInABox() {
        QString told;
        QTimer::singleShot(0, this, [&told] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            told = box->text();
            box->accept();
        });
        desktopFolderDialog().tell(nullptr, QStringLiteral("Caption"), QStringLiteral("no folder"));
        QCOMPARE(told, QStringLiteral("no folder"));
    }

  private:
    DesktopFolderDialog standIn() {
        return {[this](QWidget* /*owner*/, const QString& title, const QString& folder) {
                    titles.append(title);
                    asked.append(folder);
                    return answers.takeFirst();
                },
                [this](QWidget* /*owner*/, const QString& /*title*/, const QString& fault) {
                    faults.append(fault);
                }};
    }
    std::string browse() {
        return browseOnDesktop(nullptr, {"Velmora - Select folder", "Which one?", place.path().toStdString()},
                               standIn());
    }

    QTemporaryDir place;
    QStringList answers;
    QStringList asked;
    QStringList titles;
    QStringList faults;
};

}  // namespace
}  // namespace velmora

QTEST_MAIN(velmora::DesktopFolderBrowserTest)
#include "desktop_folder_browser_test.moc"
