#include "ui/qt/frm_debug.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "support/accessibility_walk.h"
#include "support/assistive_actions.h"
#include "support/fake_timers.h"

namespace velmora {

namespace {

constexpr const char* kStart = "=================== start logging ===================";
constexpr const char* kStop = "================== logging stopped ==================";
constexpr const char* kStopDisk = "==== logging stopped (disk log is still active) =====";

}  // namespace

class FrmDebugTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        time = std::make_unique<test::FakeTime>();
        time->midnightOffset = 100.4;
        window = std::make_unique<frmDebug>(*time);
        window->show();
        log = child<QListView>("txtLog");
        QTRY_VERIFY(window->isActiveWindow());
    }
    void cleanup() { window.reset(); }

    void hasItsCaptionAndItsBoxesAreHidden() {
        QCOMPARE(window->windowTitle(), QString("Velmora PLP Monitor"));
        for (std::size_t box = 0; box < DebugLogModel::kCategories; ++box) {
            QVERIFY(category(box)->isHidden());
            QVERIFY(!category(box)->isChecked());
        }
        QVERIFY(child<QRadioButton>("obShowWhat_1")->isChecked());
    }
    void linesBeginWithTheTimeSinceTheRoundedStart() {
        time->midnightOffset = 112.9;
        window->model().addline("text");
        QCOMPARE(shown(), QStringList("12.90\ttext"));
    }
    void theTimeIsNegativeAfterMidnight() {
        time->midnightOffset = 86'390;
        window->model().startlog();
        time->midnightOffset = 10;
        window->model().addline("text");
        QCOMPARE(shown(), QStringList("-86380.00\ttext"));
    }
    void accentsAreShown() {
        window->model().addline(
            "Gr\xFC\xDF"
            "e");
        QCOMPARE(texts(), QStringList(QString::fromUtf8("Grüße")));
    }
    void clearingWritesTheStartBannerAsTheFirstLine() {
        addLines(3);
        window->model().addline("still waiting");
        child<QPushButton>("cbClear")->click();
        QCOMPARE(texts(), QStringList(kStart));
    }
    void minimisingStopsAndRestoringStarts() {
        window->showMinimized();
        QTRY_COMPARE(texts(), QStringList(kStop));
        QVERIFY(!window->model().logging());
        window->showNormal();
        QTRY_COMPARE(texts(), QStringList({kStop, kStart}));
        QVERIFY(window->model().logging());
    }
    void maximisingWritesTheStopBannerAlthoughTheLogGoesOn() {
        window->showMaximized();
        QTRY_COMPARE(texts(), QStringList(kStop));
        QVERIFY(window->model().logging());
        window->showNormal();
        QTRY_COMPARE(texts(), QStringList({kStop, kStart}));
    }
    void logToDiskChangesTheStopBannerOnly() {
        child<QCheckBox>("chkLogToDisk")->click();
        QCOMPARE(texts(), QStringList());
        window->showMinimized();
        QTRY_COMPARE(texts(), QStringList(kStopDisk));
        window->showNormal();
        QTRY_COMPARE(texts(), QStringList({kStopDisk, kStart}));
    }
    void boxesAppearAsCategoriesAreMetAndLookActiveInCustomOnly() {
        QVERIFY(window->model().categoryEnabled("PLP"));
        QVERIFY(window->model().categoryEnabled("DATA"));
        QVERIFY(!category(0)->isHidden());
        QCOMPARE(category(0)->text(), QString("PLP"));
        QCOMPARE(category(1)->text(), QString("DATA"));
        QVERIFY(category(2)->isHidden());
        category(0)->click();
        QCOMPARE(category(0)->checkState(), Qt::PartiallyChecked);
        child<QRadioButton>("obShowWhat_3")->click();
        QCOMPARE(category(0)->checkState(), Qt::Checked);
        QCOMPARE(category(1)->checkState(), Qt::Unchecked);
        QVERIFY(window->model().categoryEnabled("PLP"));
        QVERIFY(!window->model().categoryEnabled("DATA"));
        child<QRadioButton>("obShowWhat_2")->click();
        QCOMPARE(category(0)->checkState(), Qt::PartiallyChecked);
        category(0)->click();
        QCOMPARE(category(0)->checkState(), Qt::Unchecked);
    }
    void showsAndHides() {
        window->toggle();
        QVERIFY(!window->isVisible());
        QVERIFY(!window->model().logging());
        window->toggle();
        QVERIFY(window->isVisible());
        QVERIFY(window->model().logging());
        QVERIFY(!window->isModal());
        window->close();
        QVERIFY(!window->model().logging());
    }

    void aBatchComesByItselfAsOneInsertion() {
        const QAbstractItemModelTester tester(log->model());
        const QSignalSpy inserted(log->model(), &QAbstractItemModel::rowsInserted);
        for (int line = 0; line < 100; ++line) {
            window->model().addline("text");
        }
        QCOMPARE(log->model()->rowCount(), 0);
        QTRY_COMPARE(log->model()->rowCount(), 100);
        QCOMPARE(inserted.count(), 1);
    }
    void nothingIsEverShortened() {
        addLines(100'000);
        QCOMPARE(log->model()->rowCount(), 100'000);
        QCOMPARE(textAt(0), QString("line 0"));
        QCOMPARE(textAt(99'999), QString("line 99999"));
    }
    void theLogCannotBeEdited() {
        addLines(1);
        QVERIFY(!(log->model()->flags(log->model()->index(0, 0)) & Qt::ItemIsEditable));
        QCOMPARE(log->editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(log->font().family(), QString("Courier New"));
    }

    void theEndIsFollowed() {
        addLines(200);
        QVERIFY(atEnd());
        addLines(200);
        QVERIFY(atEnd());
        window->resize(window->width(), window->height() - 60);
        QTRY_VERIFY(atEnd());
        QVERIFY(follow()->isChecked());
    }
    void scrollingUpHoldsUntilTheEndIsFollowedAgain() {
        addLines(200);
        log->verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
        QVERIFY(!follow()->isChecked());
        const int held = log->verticalScrollBar()->value();
        addLines(200);
        QCOMPARE(log->verticalScrollBar()->value(), held);
        follow()->click();
        QVERIFY(atEnd());
        addLines(200);
        QVERIFY(atEnd());
    }
    void theKeysMoveThroughTheLogAndHold() {
        addLines(200);
        log->setFocus();
        QTest::keyClick(log, Qt::Key_Home);
        QCOMPARE(log->currentIndex().row(), 0);
        QCOMPARE(log->verticalScrollBar()->value(), 0);
        QVERIFY(!follow()->isChecked());
        QTest::keyClick(log, Qt::Key_Down);
        QCOMPARE(log->currentIndex().row(), 1);
        QTest::keyClick(log, Qt::Key_PageDown);
        QVERIFY(log->currentIndex().row() > 5);
        QTest::keyClick(log, Qt::Key_End);
        QCOMPARE(log->currentIndex().row(), 199);
        QVERIFY(atEnd());
    }
    void theKeysMoveByPagesAndSideways() {
        addLines(199);
        window->model().addline(std::string(500, 'x'));
        window->showWaiting();
        log->setFocus();
        QTest::keyClick(log, Qt::Key_End);
        QTest::keyClick(log, Qt::Key_PageUp);
        const int page = 199 - log->currentIndex().row();
        QVERIFY(page > 1);
        QTest::keyClick(log, Qt::Key_Up);
        QCOMPARE(log->currentIndex().row(), 198 - page);
        QCOMPARE(log->horizontalScrollBar()->value(), 0);
        QTest::keyClick(log, Qt::Key_Right);
        QVERIFY(log->horizontalScrollBar()->value() > 0);
        QTest::keyClick(log, Qt::Key_Left);
        QCOMPARE(log->horizontalScrollBar()->value(), 0);
    }
    void theFirstKeyGoesToTheTopmostLineThatIsShown() {
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down}) {
            child<QPushButton>("cbClear")->click();
            addLines(200);
            log->setFocus();
            log->setCurrentIndex({});
            const int top = log->verticalScrollBar()->value();
            QTest::keyClick(log, key);
            QCOMPARE(log->currentIndex().row(), top);
        }
    }
    void inAnEmptyLogTheKeysMoveNowhere() {
        log->setFocus();
        QTest::keyClick(log, Qt::Key_Down);
        QVERIFY(!log->currentIndex().isValid());
    }
    void aLineIsBroughtToThePlaceThatIsAskedFor() {
        addLines(200);
        const QModelIndex line = log->model()->index(100, 0);
        const QScrollBar* bar = log->verticalScrollBar();
        log->scrollTo(line, QAbstractItemView::PositionAtTop);
        QCOMPARE(bar->value(), 100);
        log->scrollTo(line, QAbstractItemView::PositionAtBottom);
        const int bottom = bar->value();
        QVERIFY(bottom < 100 && log->viewport()->rect().contains(centreOf(100)));
        log->scrollTo(line);
        QCOMPARE(bar->value(), bottom);
        log->scrollTo(log->model()->index(10, 0));
        QCOMPARE(bar->value(), 10);
        log->scrollTo({});
        QCOMPARE(bar->value(), 10);
        QVERIFY(log->visualRect({}).isNull());
    }
    void whatLiesAboveTheViewIsFoundThere() {
        addLines(200);
        log->scrollTo(log->model()->index(100, 0), QAbstractItemView::PositionAtTop);
        QCOMPARE(log->indexAt({5, 0}).row(), 100);
        QCOMPARE(log->indexAt({5, -1}).row(), 99);
        QCOMPARE(log->indexAt({5, -1 - log->visualRect(log->model()->index(0, 0)).height()}).row(), 98);
    }
    void aLargerFontMakesHigherLines() {
        addLines(200);
        const int before = log->visualRect(log->model()->index(0, 0)).height();
        QFont font = log->font();
        font.setPointSize(2 * font.pointSize());
        log->setFont(font);
        QVERIFY(log->visualRect(log->model()->index(0, 0)).height() > before);
        QTRY_VERIFY(atEnd());
        log->setStyleSheet("QListView { font-size: 40pt; }");
        QTRY_VERIFY(atEnd());
    }
    void nothingIsFoundByNothing() {
        addLines(1);
        const auto* lines = qobject_cast<const LogLines*>(log->model());
        QVERIFY(lines);
        QCOMPARE(lines->find("", -1, LogLines::Direction::Forward), std::nullopt);
    }
    void nothingIsInALineButItsText() {
        addLines(1);
        QVERIFY(!log->model()->data(log->model()->index(0, 0), Qt::DecorationRole).isValid());
        QVERIFY(!log->model()->data({}).isValid());
    }
    void clearingKeepsFollowing() {
        addLines(200);
        child<QPushButton>("cbClear")->click();
        QVERIFY(follow()->isChecked());
        follow()->click();
        addLines(200);
        QCOMPARE(log->verticalScrollBar()->value(), 0);
    }

    void copiesTheSelectedLinesInTheirOrder() {
        addLines(20);
        follow()->click();
        log->setFocus();
        log->verticalScrollBar()->setValue(0);
        QTest::mouseClick(log->viewport(), Qt::LeftButton, {}, centreOf(4));
        QTest::mouseClick(log->viewport(), Qt::LeftButton, Qt::ControlModifier, centreOf(1));
        QTest::keySequence(window.get(), QKeySequence::Copy);
        QCOMPARE(clipboard(), QString("0.40\tline 1\n0.40\tline 4\n"));
        QTest::mouseClick(log->viewport(), Qt::LeftButton, {}, centreOf(2));
        QTest::mouseClick(log->viewport(), Qt::LeftButton, Qt::ShiftModifier, centreOf(3));
        QTest::keySequence(window.get(), QKeySequence::Copy);
        QCOMPARE(clipboard(), QString("0.40\tline 2\n0.40\tline 3\n"));
        QTest::keyClick(log, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keySequence(window.get(), QKeySequence::Copy);
        QCOMPARE(clipboard(), QString("0.40\tline 2\n0.40\tline 3\n0.40\tline 4\n"));
    }
    void copyWithoutASelectionLeavesTheClipboard() {
        QGuiApplication::clipboard()->setText("kept");
        addLines(2);
        choose("mnuCopy");
        QCOMPARE(clipboard(), QString("kept"));
    }
    void copiesAll() {
        window->model().addline("one");
        window->model().addline("two");
        choose("mnuCopyAll");
        QCOMPARE(clipboard(), QString("0.40\tone\n0.40\ttwo\n"));
        QGuiApplication::clipboard()->clear();
        choose("mnuSelectAll");
        choose("mnuCopy");
        QCOMPARE(clipboard(), QString("0.40\tone\n0.40\ttwo\n"));
    }

    void hidesIdlePollingAndShowsItAgain() {
        const QAbstractItemModelTester tester(log->model());
        addPolledLines(2);
        QCOMPARE(texts(), QStringList({"line 0", "poll", "line 1", "poll"}));
        hidePolling()->click();
        QCOMPARE(texts(), QStringList({"line 0", "line 1"}));
        addPolledLines(1);
        window->model().addPollingLine("poll");
        QCOMPARE(texts(), QStringList({"line 0", "line 1", "line 0"}));
        test::toggleAssisted(*hidePolling());
        QCOMPARE(texts(), QStringList({"line 0", "poll", "line 1", "poll", "line 0", "poll", "poll"}));
    }
    void whatIsHiddenIsSavedButNotCopied() {
        const QTemporaryDir folder;
        addPolledLines(1);
        hidePolling()->click();
        choose("mnuCopyAll");
        QCOMPARE(clipboard(), QString("0.40\tline 0\n"));
        QVERIFY(window->saveTo(folder.filePath("log.txt")));
        QCOMPARE(contentOf(folder.filePath("log.txt")), QByteArray("0.40\tline 0\n0.40\tpoll\n"));
    }
    void hidingFollowsTheEndOn() {
        addPolledLines(200);
        hidePolling()->click();
        QVERIFY(atEnd());
        QVERIFY(follow()->isChecked());
        hidePolling()->click();
        QVERIFY(atEnd());
        QVERIFY(follow()->isChecked());
    }
    void hidingStaysAtTheLineThatAHeldViewBeginsWith() {
        addPolledLines(200);
        log->setCurrentIndex(log->model()->index(104, 0));
        log->scrollTo(log->model()->index(100, 0), QAbstractItemView::PositionAtTop);
        QVERIFY(!follow()->isChecked());
        hidePolling()->click();
        QCOMPARE(log->verticalScrollBar()->value(), 50);
        QCOMPARE(log->currentIndex().row(), 52);
        hidePolling()->click();
        QCOMPARE(log->verticalScrollBar()->value(), 100);
        QCOMPARE(log->currentIndex().row(), 104);
    }
    void whatIsHiddenIsNotFound() {
        addPolledLines(2);
        hidePolling()->click();
        QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(child<QLineEdit>("txtFind"), "poll");
        QTest::keyClick(child<QLineEdit>("txtFind"), Qt::Key_Return);
        QCOMPARE(found(), QString("Not found"));
    }
    void clearingWhileHiddenEmptiesTheLog() {
        addPolledLines(2);
        hidePolling()->click();
        child<QPushButton>("cbClear")->click();
        QCOMPARE(texts(), QStringList(kStart));
        hidePolling()->click();
        QCOMPARE(texts(), QStringList(kStart));
    }

    void savesTheLogAsUtf8UnderTheChosenName() {
        const QTemporaryDir folder;
        window->model().addline("10 \x80");
        window->model().addline("end");
        QTimer::singleShot(0, window.get(), [&folder] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(folder.filePath("evening"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        choose("mnuSave");
        QCOMPARE(contentOf(folder.filePath("evening.txt")), QByteArray("0.40\t10 \xE2\x82\xAC\n0.40\tend\n"));
    }
    void offersACaptureOnlyWhereThereIsOne() {
        QVERIFY(!child<QAction>("mnuSaveCapture")->isVisible());
        window->offerCapture([] { return std::string("bytes"); });
        QVERIFY(child<QAction>("mnuSaveCapture")->isVisible());
    }
    void savesTheCaptureByteForByteUnderTheChosenName() {
        const QTemporaryDir folder;
        window->offerCapture([] { return std::string("a\0\n\r\nb", 6); });
        QTimer::singleShot(0, window.get(), [&folder] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(folder.filePath("line"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        choose("mnuSaveCapture");
        QFile file(folder.filePath("line.pcapng"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("a\0\n\r\nb", 6));
    }
    void aCaptureThatCannotBeSavedSaysWhatToDo() {
        const QTemporaryDir folder;
        QString said;
        QTimer::singleShot(0, window.get(), [&said] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            said = box->text();
            box->accept();
        });
        window->offerCapture([] { return std::string("bytes"); });
        QVERIFY(!window->saveCaptureTo(folder.filePath("missing/line.pcapng")));
        QVERIFY2(said.startsWith("The capture could not be saved in\n"), qPrintable(said));
    }
    void aCancelledSaveWritesNothing() {
        QTimer::singleShot(0, window.get(), [] { QApplication::activeModalWidget()->close(); });
        choose("mnuSave");
        QVERIFY(!QApplication::activeModalWidget());
    }
    void aFailedSaveComesBackToItsDialog() {
#ifdef Q_OS_WIN
        QSKIP("links take rights there");
#endif
        addLines(1);
        const QTemporaryDir folder;
        QVERIFY(QFile::link(folder.filePath(QStringLiteral("missing/log.txt")),
                            folder.filePath(QStringLiteral("away.txt"))));
        const QStringList names = {QStringLiteral("away"), QStringLiteral("evening")};
        qsizetype asked = 0;
        int boxes = 0;
        QTimer user;
        connect(&user, &QTimer::timeout, this, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ++boxes;
                box->accept();
            } else if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                dialog->findChild<QLineEdit*>("fileNameEdit")->setText(folder.filePath(names.value(asked++)));
                QMetaObject::invokeMethod(dialog, "accept");
            }
        });
        user.start(1);
        choose("mnuSave");
        user.stop();
        QCOMPARE(boxes, 1);
        QCOMPARE(asked, qsizetype{2});
        QVERIFY(QFile::exists(folder.filePath("evening.txt")));
    }
    void aFailedSaveSaysWhatToDo() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("missing/log.txt");
        QString said;
        QTimer::singleShot(0, window.get(), [&said] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            said = box->text();
            box->accept();
        });
        QVERIFY(!window->saveTo(path));
        QVERIFY2(said.startsWith("The log could not be saved in\n" + QDir::toNativeSeparators(path) + "\n"),
                 qPrintable(said));
        QVERIFY2(said.endsWith("Choose another folder or name."), qPrintable(said));
    }

    void findsForwardsAndBackwardsAndRoundTheEnd() {
        addLines(100);
        QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
        auto* text = child<QLineEdit>("txtFind");
        QTRY_VERIFY(text->hasFocus());
        QTest::keyClicks(text, "LINE 4");
        QTest::keyClick(text, Qt::Key_Return);
        QCOMPARE(found(), QString("Line 5 of 100"));
        QCOMPARE(log->currentIndex().row(), 4);
        QVERIFY(log->selectionModel()->isSelected(log->model()->index(4, 0)));
        QVERIFY(!follow()->isChecked());
        QTest::keyClick(window.get(), Qt::Key_F3);
        QCOMPARE(found(), QString("Line 41 of 100"));
        QVERIFY(log->viewport()->rect().contains(centreOf(40)));
        QTest::keyClick(window.get(), Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(found(), QString("Line 5 of 100"));
        QTest::keyClick(window.get(), Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(found(), QString("Line 50 of 100, from the end again"));
        child<QPushButton>("cbFindNext")->click();
        QCOMPARE(found(), QString("Line 5 of 100, from the beginning again"));
        child<QPushButton>("cbFindPrevious")->click();
        QCOMPARE(found(), QString("Line 50 of 100, from the end again"));
    }
    void whatIsNotThereIsNotFoundInWords() {
        addLines(3);
        for (const QString& part : {QString("nowhere"), QString::fromUtf8("\xE2\x98\x83")}) {
            child<QLineEdit>("txtFind")->setText(part);
            choose("mnuFindNext");
            QCOMPARE(found(), QString("Not found"));
            QCOMPARE(child<QLineEdit>("txtFind")->accessibleDescription(), QString("Not found"));
        }
        QVERIFY(child<QLabel>("lblFound")->isVisible());
    }
    void theLastFindingIsForgottenWhileTyping() {
        child<QLineEdit>("txtFind")->setText("x");
        choose("mnuFindNext");
        QCOMPARE(found(), QString("Not found"));
        QTest::keyClicks(child<QLineEdit>("txtFind"), "y");
        QCOMPARE(found(), QString());
    }
    void findsTheOnlyLineAgainAndLinesThatStillWait() {
        window->model().addline(
            "Gr\xDC\xDF"
            "E");
        child<QLineEdit>("txtFind")->setText(QString::fromUtf8("grüß"));
        choose("mnuFindPrevious");
        QCOMPARE(found(), QString("Line 1 of 1"));
        choose("mnuFindNext");
        QCOMPARE(found(), QString("Line 1 of 1, from the beginning again"));
    }
    void findNextWithoutATextAsksForOneAndEscapeGoesBack() {
        QTest::keyClick(window.get(), Qt::Key_F3);
        auto* text = child<QLineEdit>("txtFind");
        QTRY_VERIFY(text->hasFocus());
        QTest::keyClick(text, Qt::Key_Escape);
        QVERIFY(!text->isVisible());
        QVERIFY(log->hasFocus());
    }

    void shutsNobodyOut() {
        for (const char* met : {"PLP", "DATA", "ERROR"}) {
            window->model().categoryEnabled(met);
        }
        addLines(30);
        choose("mnuFind");
        QCOMPARE(test::accessibilityFaults(*window), QStringList());
        QCOMPARE(test::walk::spokenName(*log), QString("Log"));
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(log);
        QCOMPARE(spoken->childCount(), 30);
        QCOMPARE(spoken->child(7)->text(QAccessible::Name), QString("0.40\tline 7"));
        QVERIFY(test::tabOrder(*window).startsWith("txtLog"));
    }
    void theCurrentLineHasAFrameWhileTheLogHasTheFocus() {
        addLines(5);
        window->setAttribute(Qt::WA_KeyboardFocusChange);  // as the first Tab does
        log->setCurrentIndex(log->model()->index(2, 0));
        const QRect area = log->visualRect(log->model()->index(2, 0));
        for (const bool selected : {true, false}) {
            if (!selected) {
                log->clearSelection();
            }
            log->setFocus();
            const QImage with = log->viewport()->grab(area).toImage();
            log->clearFocus();
            QVERIFY(log->viewport()->grab(area).toImage() != with);
        }
    }
    void linesArePaintedAndSelectedOnesStandOut() {
        addLines(5);
        const QImage before = log->viewport()->grab(log->visualRect(log->model()->index(2, 0))).toImage();
        log->setCurrentIndex(log->model()->index(2, 0));
        const QImage after = log->viewport()->grab(log->visualRect(log->model()->index(2, 0))).toImage();
        QVERIFY(before.pixelColor(before.width() - 3, 2) == log->palette().color(QPalette::Base));
        QVERIFY(after.pixelColor(after.width() - 3, 2) != log->palette().color(QPalette::Base));
    }

    void choicesOfAssistiveToolsCount() {
        QVERIFY(window->model().categoryEnabled("DATA"));
        test::toggleAssisted(*child<QRadioButton>("obShowWhat_3"));
        QCOMPARE(window->model().showWhat(), DebugLogModel::ShowWhat::Custom);
        QCOMPARE(window->model().category(DebugLogModel::kDataBox).value, DebugLogModel::kOff);
        test::toggleAssisted(*category(DebugLogModel::kDataBox));
        QCOMPARE(window->model().category(DebugLogModel::kDataBox).value, DebugLogModel::kOn);
        test::toggleAssisted(*category(DebugLogModel::kDataBox));
        QCOMPARE(window->model().category(DebugLogModel::kDataBox).value, DebugLogModel::kOff);
    }

  private:
    template <class Control>
    Control* child(const QString& name) {
        return window->findChild<Control*>(name);
    }
    QCheckBox* category(std::size_t box) {
        return child<QCheckBox>(QString("chkShowWhat_%1").arg(box));
    }
    QCheckBox* follow() {
        return child<QCheckBox>("chkFollow");
    }
    QString found() {
        return child<QLabel>("lblFound")->text();
    }
    void choose(const QString& entry) {
        child<QAction>(entry)->trigger();
    }
    void addLines(int count) {
        for (int line = 0; line < count; ++line) {
            window->model().addline("line " + std::to_string(line));
        }
        window->showWaiting();
    }
    /// Lines with a poll of the idle link behind each.
    void addPolledLines(int count) {
        for (int line = 0; line < count; ++line) {
            window->model().addline("line " + std::to_string(line));
            window->model().addPollingLine("poll");
        }
        window->showWaiting();
    }
    QCheckBox* hidePolling() {
        return child<QCheckBox>("chkHidePolling");
    }
    QString lineAt(int row) {
        return log->model()->index(row, 0).data().toString();
    }
    QString textAt(int row) {
        return lineAt(row).section('\t', 1);
    }
    QStringList shown() {
        window->showWaiting();
        QStringList lines;
        for (int row = 0; row < log->model()->rowCount(); ++row) {
            lines.append(lineAt(row));
        }
        return lines;
    }
    QStringList texts() {
        QStringList lines = shown();
        for (QString& line : lines) {
            line = line.section('\t', 1);
        }
        return lines;
    }
    bool atEnd() {
        const QScrollBar* bar = log->verticalScrollBar();
        return bar->maximum() > 0 && bar->value() == bar->maximum();
    }
    QPoint centreOf(int row) {
        QRect area = log->visualRect(log->model()->index(row, 0));
        area.setWidth(100);
        return area.center();
    }
    static QString clipboard() {
        return QGuiApplication::clipboard()->text();
    }
    static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray("(none)");
    }

    std::unique_ptr<test::FakeTime> time;
    std::unique_ptr<frmDebug> window;
    QListView* log = nullptr;
};

}  // namespace velmora

QTEST_MAIN(velmora::FrmDebugTest)
#include "frm_debug_test.moc"
