#include "ui/qt/dropped_files_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace velmora {

using Fate = DroppedFile::Fate;

class DroppedFilesBoxTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        buttons.clear();
        text.clear();
    }

    void eachButtonIsItsAnswer() {
        QCOMPARE(answered("Replace it", true), NameTaken::Replace);
        QCOMPARE(answered("Copy as Memo2.odb", true), NameTaken::OtherName);
        QCOMPARE(answered("Skip", true), NameTaken::Skip);
        QCOMPARE(answered("Skip all", true), NameTaken::SkipAll);
        QCOMPARE(text, QString("Memo.odb is in the download folder already."));
    }
    void enterCopiesUnderTheOtherNameAndEscapeSkips() {
        QCOMPARE(answered(Qt::Key_Return), NameTaken::OtherName);
        QCOMPARE(answered(Qt::Key_Escape), NameTaken::Skip);
    }
    void theLastFileIsNotSkippedWithOthers() {
        QCOMPARE(answered("Skip", false), NameTaken::Skip);
        QVERIFY(!buttons.contains("Skip all"));
    }

    void filesThatWentWhereTheyWereDroppedAreOneSentence() {
        QCOMPARE(copiedSentence({copied("Memo.odb")}), QString("Memo.odb is in the download folder now."));
        QCOMPARE(copiedSentence({copied("A.odb"), copied("B.odb")}),
                 QString("2 files are in the download folder now."));
        QCOMPARE(copiedSentence({}), QString());
        QCOMPARE(copiedSentence({copied("A.odb"), {"/home/B.odb", {}, {}, Fate::Skipped}}), QString());
        QVERIFY(boxAbout({copied("Memo.odb")}).isEmpty());
    }
    void whatWentElsewhereOrNowhereIsTold() {
        DroppedFile renamed = copied("mynotes.txt");
        renamed.source = "/home/my notes.txt";
        renamed.renamed = true;
        QCOMPARE(copiedSentence({renamed}), QString());
        QCOMPARE(boxAbout({renamed}),
                 QString("my notes.txt is called mynotes.txt there, which the Organiser can type."));
        QCOMPARE(icon, QMessageBox::Information);
        QCOMPARE(boxAbout({copied("A.odb"),
                           {"/psion/B", "/psion/B", {}, Fate::AlreadyThere},
                           {"/home/C", {}, {}, Fate::Skipped},
                           {"/home/D", {}, {}, Fate::Folder},
                           {"/home/E", {}, {}, Fate::TooLarge},
                           {"/home/F", {}, {}, Fate::NoPlace},
                           {"/home/G", "/psion/G", "Disk full", Fate::Failed}}),
                 QString("B is in the download folder already.\n"
                         "D is a folder; only files are copied.\n"
                         "E has more than 16 MB and was not copied.\n"
                         "F was not copied: the download folder is not there.\n"
                         "G was not copied: Disk full"));
        QCOMPARE(icon, QMessageBox::Warning);
    }
    void skippedFilesNeedNoBox() { QVERIFY(boxAbout({{"/home/C", {}, {}, Fate::Skipped}}).isEmpty()); }
    void manyLinesEndInACount() {
        const std::vector<DroppedFile> folders(30, {"/home/D", {}, {}, Fate::Folder});
        const QStringList lines = boxAbout(folders).split('\n');
        QCOMPARE(lines.size(), qsizetype{12});
        QCOMPARE(lines.last(), QString("There are 19 more such files."));
        QCOMPARE(boxAbout({folders.begin(), folders.begin() + 12}).count('\n'), qsizetype{11});
    }

  private:
    static DroppedFile copied(const std::string& name) { return {"/home/" + name, "/psion/" + name}; }
    /// Has the next box answered by what is done with it.
    template <typename Answer>
    void whenAsked(Answer answer) {
        QTimer::singleShot(0, &window, [this, answer] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) {
                return;
            }
            text = box->text();
            icon = box->icon();
            for (QAbstractButton* button : box->buttons()) {
                buttons.append(button->text().remove('&'));
            }
            answer(*box);
        });
    }
    NameTaken ask(bool more) { return askAboutTaken(window, {"/psion/Memo.odb", "Memo2.odb", more}); }
    NameTaken answered(const QString& caption, bool more) {
        whenAsked([caption](QMessageBox& box) {
            for (QAbstractButton* button : box.buttons()) {
                if (button->text().remove('&') == caption) {
                    button->click();
                    return;
                }
            }
        });
        return ask(more);
    }
    NameTaken answered(Qt::Key key) {
        whenAsked([key](QMessageBox& box) { QTest::keyClick(&box, key); });
        return ask(true);
    }
    QString boxAbout(const std::vector<DroppedFile>& files) {
        text.clear();
        whenAsked([](QMessageBox& box) { box.accept(); });
        tellOfDropped(window, files);
        QCoreApplication::processEvents();
        return text;
    }

    QWidget window;
    QStringList buttons;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
};

}  // namespace velmora

using velmora::DroppedFilesBoxTest;
QTEST_MAIN(DroppedFilesBoxTest)
#include "dropped_files_box_test.moc"
