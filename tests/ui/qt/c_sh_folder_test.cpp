#include "ui/qt/c_sh_folder.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <utility>

#include "ui/qt/folder_dialog.h"

namespace velmora {

class CSHFolderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        QVERIFY(QDir(place.path()).mkpath("inner"));
        QFile file(place.filePath("plain.txt"));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void theChosenFolderIsReturnedAndKept() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        whenOpen(folder, [&] {
            opened(folder)->select(place.filePath("inner"));
            accept(folder);
        });
        QCOMPARE(folder.BrowseForFolder(nullptr), path() + "/inner");
        QCOMPARE(folder.DisplayName(), path() + "/inner");
        QVERIFY(!folder.hWnd());
    }
    void helpIsAskedForByItsKey() {
        cSHFolder folder;
        int asked = 0;
        folder.setHelp([&asked] { ++asked; });
        whenOpen(folder, [&] {
            [&] { QTRY_VERIFY(folder.hWnd()->isActiveWindow()); }();
            QTest::keyClick(folder.hWnd(), Qt::Key_F1);
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(asked, 1);
    }
    void theDefaultPathIsPreselected() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        whenOpen(folder, [&] { accept(folder); });
        QCOMPARE(folder.BrowseForFolder(nullptr), path());
    }
    void anOpenDialogGoesToTheDefaultPathAtOnce() {
        cSHFolder folder;
        whenOpen(folder, [&] {
            folder.setDefaultPath(path() + "/inner");
            accept(folder);
        });
        QCOMPARE(folder.BrowseForFolder(nullptr), path() + "/inner");
    }
    void cancelIsEmptyAndForgetsTheLastChoice() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        bool cancel = false;
        whenOpen(folder, [&] { cancel ? opened(folder)->reject() : accept(folder); });
        QCOMPARE(folder.BrowseForFolder(nullptr), path());
        cancel = true;
        QCOMPARE(folder.BrowseForFolder(nullptr), std::string());
        QCOMPARE(folder.DisplayName(), std::string());
        QVERIFY(!folder.hWnd());
    }
    void theDownloadFolderIsAskedForWithItsCaptionPromptAndPlace() {
        const FolderQuestion question{"Caption", "Which one?", path()};
        QString title;
        QString prompt;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<FolderDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            title = dialog->windowTitle();
            prompt = dialog->findChild<QLabel*>("lblPrompt")->text();
            QVERIFY(dialog->findChild<QLineEdit*>("txtPath")->isVisible());
            dialog->findChild<QLineEdit*>("txtPath")->setText("inner");
            QMetaObject::invokeMethod(dialog, "accept", Qt::DirectConnection);
        });
        QCOMPARE(folderBrowser(nullptr)(question), path() + "/inner");
        QCOMPARE(title, QString("Caption"));
        QCOMPARE(prompt, QString("Which one?"));
    }
    void captionPromptAndStatusAreShown() {
        cSHFolder folder;
        folder.setCaption("Folder \xFC");
        folder.setStatusTextArea(true);
        folder.setStatusText("ready");
        whenOpen(folder, [&] {
            QCOMPARE(folder.hWnd()->windowTitle(), QString::fromUtf8("Folder \u00FC"));
            QCOMPARE(label(folder, "lblPrompt")->text(), QString("Where to?"));
            QVERIFY(label(folder, "lblStatus")->isVisible());
            QCOMPARE(label(folder, "lblStatus")->text(), QString("ready"));
            folder.setStatusText("later");
            folder.setCaption("Other");
            QCOMPARE(label(folder, "lblStatus")->text(), QString("later"));
            QCOMPARE(folder.hWnd()->windowTitle(), QString("Other"));
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr, "Where to?");
        QCOMPARE(seen, 1);
    }
    void thePromptsDefaultIsGermanAndNoStatusLineIsShown() {
        cSHFolder folder;
        whenOpen(folder, [&] {
            QCOMPARE(label(folder, "lblPrompt")->text(),
                     QString::fromUtf8("W\u00E4hlen Sie einen Ordner aus"));
            QVERIFY(!label(folder, "lblStatus")->isVisible());
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(seen, 1);
    }
    void okIsDisabledAndEnabledWhileOpen() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        whenOpen(folder, [&] {
            folder.setOKEnabled(false);
            opened(folder)->select(place.filePath("inner"));
            QVERIFY(!okOf(folder)->isEnabled());
            accept(folder);
            QVERIFY(folder.hWnd()->isVisible());
            folder.setOKEnabled(true);
            QVERIFY(okOf(folder)->isEnabled());
            accept(folder);
        });
        QCOMPARE(folder.BrowseForFolder(nullptr), path() + "/inner");
    }
    void signalsAreRaised() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        QSignalSpy initialized(&folder, &cSHFolder::Initialized);
        QSignalSpy moved(&folder, &cSHFolder::SelectionChanged);
        whenOpen(folder, [&] {
            opened(folder)->select(place.filePath("inner"));
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(initialized.count(), 1);
        QVERIFY(moved.count() >= 1);
    }
    void aTypedNameThatIsNoFolderFailsAndStaysOpen() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        folder.setEditBox(true);
        QSignalSpy failed(&folder, &cSHFolder::ValidationFailed);
        whenOpen(folder, [&] {
            auto* box = folder.hWnd()->findChild<QLineEdit*>("txtPath");
            QVERIFY(box->isVisible());
            box->setText("missing");
            accept(folder);
            QVERIFY(folder.hWnd()->isVisible());
            QVERIFY(label(folder, "lblFault")->text().contains("missing"));
            QVERIFY(label(folder, "lblFault")->isVisible());
            box->setText("inner");
            QVERIFY(!label(folder, "lblFault")->isVisible());
            accept(folder);
        });
        QCOMPARE(folder.BrowseForFolder(nullptr), path() + "/inner");
        QCOMPARE(failed.count(), 1);
    }
    void withoutTheOptionThereIsNoEditBox() {
        cSHFolder folder;
        whenOpen(folder, [&] {
            QVERIFY(!folder.hWnd()->findChild<QLineEdit*>("txtPath")->isVisible());
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(seen, 1);
    }
    void filesCanBeChosenOnlyWhenIncluded() {
        for (const bool included : {false, true}) {
            cSHFolder folder;
            folder.setDefaultPath(path());
            folder.setIncludeFiles(included);
            whenOpen(folder, [&] {
                opened(folder)->select(place.filePath("plain.txt"));
                folder.hWnd()->findChild<QLineEdit*>("txtPath")->setText("plain.txt");
                accept(folder);
                if (folder.hWnd() && folder.hWnd()->isVisible()) {
                    opened(folder)->reject();
                }
            });
            QCOMPARE(folder.BrowseForFolder(nullptr), included ? path() + "/plain.txt" : std::string());
        }
    }
    void specialFoldersHaveTheirNumbers() {
        QCOMPARE(specialFolder(40), QFile::encodeName(QDir::homePath()).toStdString());
        QCOMPARE(specialFolder(5),
                 QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                     .toStdString());
        QCOMPARE(specialFolder(0), std::string());
        QCOMPARE(specialFolder(9999), std::string());
    }
    void aSpecialFolderIsPreselectedInPlaceOfThePath() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        folder.setDefaultPIDL(40);
        whenOpen(folder, [&] { accept(folder); });
        QCOMPARE(folder.BrowseForFolder(nullptr), specialFolder(40));
        folder.setDefaultPIDL(9999);
        QCOMPARE(folder.BrowseForFolder(nullptr), path());
    }
    void nothingOutsideTheRootIsTaken() {
        cSHFolder folder;
        QSignalSpy failed(&folder, &cSHFolder::ValidationFailed);
        whenOpen(folder, [&] {
            opened(folder)->select(QDir::rootPath());
            accept(folder);
            QVERIFY(folder.hWnd()->isVisible());
            opened(folder)->reject();
        });
        QCOMPARE(folder.BrowseForFolder(nullptr, std::nullopt, 40), std::string());
        QCOMPARE(failed.count(), 1);
    }
    void noWayLeadsOutOfTheRoot() {
        cSHFolder folder;
        whenOpen(folder, [&] {
            QCOMPARE(opened(folder)->chosenPath(), QDir::homePath());
            QVERIFY(list(folder)->findItems("..", Qt::MatchExactly).isEmpty());
            QTest::keyClick(list(folder), Qt::Key_Left);
            QCOMPARE(opened(folder)->chosenPath(), QDir::homePath());
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr, std::nullopt, 40);
        QCOMPARE(seen, 1);
    }
    void aFolderIsChosenInTheList() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        folder.setEditBox(true);
        QSignalSpy moved(&folder, &cSHFolder::SelectionChanged);
        whenOpen(folder, [&] {
            QCOMPARE(names(folder), QStringList({"..", "inner"}));
            moved.clear();
            QTest::keyClick(list(folder), Qt::Key_End);
            QCOMPARE(moved.count(), 1);
            QCOMPARE(pathBox(folder)->text(), QString::fromStdString(path() + "/inner"));
            accept(folder);
        });
        QCOMPARE(folder.BrowseForFolder(nullptr), path() + "/inner");
    }
    void foldersAreEnteredAndLeft() {
        QVERIFY(QDir(place.filePath("inner")).mkdir("below"));
        cSHFolder folder;
        folder.setDefaultPath(path());
        const QString start = QString::fromStdString(path());
        whenOpen(folder, [&] {
            QTest::keyClick(list(folder), Qt::Key_End);
            QTest::keyClick(list(folder), Qt::Key_Right);
            QCOMPARE(opened(folder)->chosenPath(), start + "/inner");
            QCOMPARE(names(folder), QStringList({"..", "below"}));
            QTest::keyClick(list(folder), Qt::Key_Backspace);
            QCOMPARE(list(folder)->currentItem()->text(), QString("inner"));
            QCOMPARE(opened(folder)->chosenPath(), start + "/inner");
            list(folder)->itemDoubleClicked(list(folder)->currentItem());
            QCOMPARE(names(folder), QStringList({"..", "below"}));
            list(folder)->setCurrentRow(0);
            QTest::keyClick(list(folder), Qt::Key_Right);
            QCOMPARE(opened(folder)->chosenPath(), start);
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(seen, 1);
        QVERIFY(QDir(place.filePath("inner")).removeRecursively());
    }
    void aFileIsNotEntered() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        folder.setIncludeFiles(true);
        whenOpen(folder, [&] {
            opened(folder)->select(place.filePath("plain.txt"));
            QCOMPARE(list(folder)->currentItem()->text(), QString("plain.txt"));
            QTest::keyClick(list(folder), Qt::Key_Right);
            QCOMPARE(list(folder)->currentItem()->text(), QString("plain.txt"));
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(seen, 1);
    }
    void aboveTheRootOfTheFileSystemIsNothing() {
        cSHFolder folder;
        folder.setDefaultPath("/");
        whenOpen(folder, [&] {
            QVERIFY(!names(folder).contains(".."));
            QTest::keyClick(list(folder), Qt::Key_Left);
            QCOMPARE(opened(folder)->chosenPath(), QString("/"));
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(seen, 1);
    }
    void aPathBeginsAtTheHomeFolderOrAtTheSelectedOne() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        folder.setEditBox(true);
        whenOpen(folder, [&] {
            for (const auto& [typed, whole] : {std::pair{QString("~"), QDir::homePath()},
                                               {QString("~/x"), QDir::homePath() + "/x"},
                                               {QString("inner/.."), QString::fromStdString(path())},
                                               {QString(""), QString::fromStdString(path())}}) {
                pathBox(folder)->setText(typed);
                QCOMPARE(opened(folder)->chosenPath(), whole);
            }
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(seen, 1);
    }
    void aNewFolderIsNamedAndMadeWhenItIsChosen() {
        QVERIFY(QDir(place.filePath("inner")).mkdir("New folder"));
        cSHFolder folder;
        folder.setDefaultPath(path() + "/inner");
        folder.setNewDialog(true);
        whenOpen(folder, [&] {
            button(folder, "pbNewFolder")->click();
            QVERIFY(pathBox(folder)->isVisible());
            QCOMPARE(pathBox(folder)->selectedText(), QString("New folder 2"));
            QTest::keyClicks(pathBox(folder), "Psion");
            QVERIFY(!QDir(place.filePath("inner")).exists("Psion"));
            accept(folder);
        });
        QCOMPARE(folder.BrowseForFolder(nullptr), path() + "/inner/Psion");
        QVERIFY(QDir(place.filePath("inner")).exists("Psion"));
        QVERIFY(QDir(place.filePath("inner")).removeRecursively());
    }
    void whoeverChoosesAnotherFolderMakesNone() {
        cSHFolder folder;
        folder.setDefaultPath(path() + "/inner");
        folder.setNewDialog(true);
        whenOpen(folder, [&] {
            button(folder, "pbNewFolder")->click();
            opened(folder)->select(place.path());
            pathBox(folder)->setText("typed");
            accept(folder);
            QVERIFY(!QDir(place.path()).exists("typed"));
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(seen, 1);
    }
    void whereNoFolderCanBeMadeThatIsTold() {
        cSHFolder folder;
        folder.setDefaultPath("/proc");
        folder.setNewDialog(true);
        whenOpen(folder, [&] {
            button(folder, "pbNewFolder")->click();
            accept(folder);
            QVERIFY(label(folder, "lblFault")->isVisible());
            QCOMPARE(label(folder, "lblFault")->text(), QString("No folder can be made in /proc"));
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(seen, 1);
    }
    void theRootOfTheComputerHoldsEveryFolder() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        whenOpen(folder, [&] { accept(folder); });
        constexpr int kDrives = 17;
        QCOMPARE(folder.BrowseForFolder(nullptr, std::nullopt, kDrives), path());
    }
    void whatIsNeitherAFileNorAFolderIsNotChosen() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        folder.setIncludeFiles(true);
        folder.setEditBox(true);
        QSignalSpy failed(&folder, &cSHFolder::ValidationFailed);
        whenOpen(folder, [&] {
            folder.hWnd()->findChild<QLineEdit*>("txtPath")->setText("missing");
            accept(folder);
            QVERIFY(folder.hWnd()->isVisible());
            opened(folder)->reject();
        });
        QCOMPARE(folder.BrowseForFolder(nullptr), std::string());
        QCOMPARE(failed.count(), 1);
    }
    void okIsOnlyForADialogThatIsOpen() {
        cSHFolder folder;
        folder.setDefaultPath(path());
        folder.setOKEnabled(false);
        whenOpen(folder, [&] { accept(folder); });
        QCOMPARE(folder.BrowseForFolder(nullptr), path());
    }
    void theDialogIsCentredWithIntegerHalving() {
        cSHFolder folder;
        whenOpen(folder, [&] {
            folder.CenterDialog();
            const QRect screen = folder.hWnd()->screen()->geometry();
            const QRect frame = folder.hWnd()->frameGeometry();
            QCOMPARE(folder.hWnd()->x(), screen.left() + (screen.width() - frame.width()) / 2);
            QCOMPARE(folder.hWnd()->y(), screen.top() + (screen.height() - frame.height()) / 2);
            opened(folder)->reject();
        });
        folder.BrowseForFolder(nullptr);
        QCOMPARE(seen, 1);
        folder.CenterDialog();
        QVERIFY(!folder.hWnd());
    }
    void onlyTheNewDialogIsResized() {
        for (const bool resizable : {false, true}) {
            cSHFolder folder;
            folder.setNewDialog(resizable);
            whenOpen(folder, [&] {
                QCOMPARE(folder.hWnd()->minimumSize() != folder.hWnd()->maximumSize(), resizable);
                opened(folder)->reject();
            });
            folder.BrowseForFolder(nullptr);
            QCOMPARE(seen, 1);
        }
    }

  private:
    void whenOpen(cSHFolder& folder, std::function<void()> play) {
        seen = 0;
        connect(&folder, &cSHFolder::Initialized, &folder, [this, play = std::move(play)] {
            ++seen;
            play();
        });
    }
    static FolderDialog* opened(const cSHFolder& folder) {
        return qobject_cast<FolderDialog*>(folder.hWnd());
    }
    static QListWidget* list(const cSHFolder& folder) {
        return folder.hWnd()->findChild<QListWidget*>("lstFolders");
    }
    static QStringList names(const cSHFolder& folder) {
        QStringList names;
        for (int row = 0; row < list(folder)->count(); ++row) {
            names << list(folder)->item(row)->text();
        }
        return names;
    }
    static QLineEdit* pathBox(const cSHFolder& folder) {
        return folder.hWnd()->findChild<QLineEdit*>("txtPath");
    }
    static QPushButton* button(const cSHFolder& folder, const char* name) {
        return folder.hWnd()->findChild<QPushButton*>(name);
    }
    static void accept(const cSHFolder& folder) {
        QMetaObject::invokeMethod(folder.hWnd(), "accept", Qt::DirectConnection);
    }
    static QLabel* label(const cSHFolder& folder, const char* name) {
        return folder.hWnd()->findChild<QLabel*>(name);
    }
    static QPushButton* okOf(const cSHFolder& folder) {
        return folder.hWnd()->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    }
    std::string path() const { return QFile::encodeName(QDir(place.path()).canonicalPath()).toStdString(); }

    QTemporaryDir place;
    int seen = 0;
};

}  // namespace velmora

QTEST_MAIN(velmora::CSHFolderTest)
#include "c_sh_folder_test.moc"
