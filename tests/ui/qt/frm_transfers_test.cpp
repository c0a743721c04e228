// The window of transfers: its table while transfers go on, and what is done with their files.
#include "ui/qt/frm_transfers.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "support/accessibility_walk.h"
#include "ui/qt/desktop_files.h"
#include "ui/qt/translation.h"

namespace velmora {
namespace {

Transfer transferOf(const char* name, std::uint64_t bytes = 0) {
    Transfer transfer;
    transfer.name = name;
    transfer.path = std::string("/psion/") + name;
    transfer.direction = TransferDirection::Load;
    transfer.bytes = bytes;
    return transfer;
}

class FrmTransfersTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open({}); }
    void cleanup() {
        window.reset();
        list.reset();
        opened.clear();
        shown.clear();
        answer.clear();
    }

    void anEmptyTableSaysSo() {
        QVERIFY(child<QLabel>("lblNone")->isVisible());
        list->transferEnded(transferOf("Memo.odb"), {});
        QTRY_VERIFY(!child<QLabel>("lblNone")->isVisible());
    }
    void theRunningTransferIsOnTopAndIsFollowed() {
        const QAbstractItemModelTester tester(table()->model());
        list->transferEnded(transferOf("Old.odb"), {});
        list->transferBegan(transferOf("Memo.odb"));
        QTRY_COMPARE(table()->model()->rowCount(), 2);
        QCOMPARE(cell(0, TransferList::Name), QStringLiteral("Memo.odb"));
        QCOMPARE(cell(0, TransferList::Result), QStringLiteral("under way"));
        list->transferMoved(transferOf("Memo.odb", 1'234));
        list->transferEnded(transferOf("Memo.odb", 1'234), {});
        QSignalSpy changed(table()->model(), &QAbstractItemModel::dataChanged);
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(cell(0, TransferList::Size), QStringLiteral("1,234"));
        QCOMPARE(cell(0, TransferList::Result), QStringLiteral("complete"));
    }
    void whatEndsAndBeginsInOneBatchIsShownWithBoth() {
        list->transferBegan(transferOf("Memo.odb"));
        QTRY_COMPARE(table()->model()->rowCount(), 1);
        QSignalSpy changed(table()->model(), &QAbstractItemModel::dataChanged);
        list->transferEnded(transferOf("Memo.odb", 7), {});
        list->transferBegan(transferOf("Next.odb"));
        QTRY_COMPARE(table()->model()->rowCount(), 2);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex().row(), 1);
        QCOMPARE(cell(1, TransferList::Result), QStringLiteral("complete"));
    }
    void theSelectionStaysWithItsTransfer() {
        list->transferEnded(transferOf("Memo.odb"), {});
        QTRY_COMPARE(table()->model()->rowCount(), 1);
        table()->selectRow(0);
        list->transferEnded(transferOf("Next.odb"), {});
        QTRY_COMPARE(table()->model()->rowCount(), 2);
        trigger("mnuOpen");
        QCOMPARE(opened, QStringList{QStringLiteral("/psion/Memo.odb")});
    }
    void aHiddenWindowCostsNothingAndIsUpToDateWhenItIsShown() {
        window->close();
        QSignalSpy inserted(table()->model(), &QAbstractItemModel::rowsInserted);
        for (int i = 0; i < 5; ++i) {
            list->transferEnded(transferOf("Memo.odb"), {});
        }
        QCOMPARE(inserted.count(), 0);
        window->present();
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(table()->model()->rowCount(), 5);
    }
    void tenThousandRowsAreShownAndGrowWithoutALag() {
        std::vector<EndedTransfer> many(TransferList::kMost, {transferOf("Memo.odb", 1), {}});
        open(std::move(many));
        const QAbstractItemModelTester tester(table()->model());
        QCOMPARE(table()->model()->rowCount(), int{TransferList::kMost});
        list->transferEnded(transferOf("Next.odb", 2), {});
        QCOMPARE(cell(int{TransferList::kMost} - 1, TransferList::Name), QString());  // dropped, not yet gone
        QTRY_COMPARE(cell(0, TransferList::Name), QStringLiteral("Next.odb"));
        QCOMPARE(table()->model()->rowCount(), int{TransferList::kMost});
        QCOMPARE(cell(int{TransferList::kMost} - 1, TransferList::Name), QStringLiteral("Memo.odb"));
        for (std::size_t i = 0; i < TransferList::kMost + 1; ++i) {
            list->transferEnded(transferOf("New.odb", 3), {});
        }
        QTRY_COMPARE(cell(int{TransferList::kMost} - 1, TransferList::Name), QStringLiteral("New.odb"));
    }
    void aSelectedTransferThatIsDroppedBeforeItsRowGoesHasNoFile() {
        open(std::vector<EndedTransfer>(TransferList::kMost, {transferOf("Memo.odb", 1), {}}));
        table()->selectRow(int{TransferList::kMost} - 1);
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        list->transferEnded(transferOf("Next.odb", 2), {});
        for (const char* each :
             {"mnuOpen", "mnuShowInFolder", "mnuOpenEarlierCopy", "mnuCopyPath", "mnuCopyDetails"}) {
            entry(each)->trigger();
        }
        QCOMPARE(opened, QStringList());
        QCOMPARE(shown, QStringList());
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
    }
    void doubleClickAndEnterOpenTheFile() {
        list->transferEnded(transferOf("Memo.odb"), {});
        QTRY_COMPARE(table()->model()->rowCount(), 1);
        const QPoint at = table()->visualRect(table()->model()->index(0, 1)).center();
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(opened.size(), 1);
        QTest::keyClick(table(), Qt::Key_Return);
        QCOMPARE(opened, QStringList(2, QStringLiteral("/psion/Memo.odb")));
        QVERIFY(!child<QLabel>("lblTold")->isVisible());
    }
    void whatCannotBeOpenedIsSaid() {
        list->transferEnded(transferOf("Memo.odb"), {});
        QTRY_COMPARE(table()->model()->rowCount(), 1);
        table()->selectRow(0);
        answer = QStringLiteral("It is gone.");
        trigger("mnuOpen");
        QVERIFY(child<QLabel>("lblTold")->isVisible());
        QCOMPARE(child<QLabel>("lblTold")->text(), answer);
        window->close();
        window->present();
        QVERIFY(!child<QLabel>("lblTold")->isVisible());
    }
    void theMenuDoesWhatItSays() {
        Transfer sheet = transferOf("Sums.wks", 28);
        sheet.earlierCopy = "/copies/Sums.wks";
        sheet.remarks = {"A1: =1-(2-3) comes back as =1-2-3"};
        list->transferEnded(sheet, {});
        QTRY_COMPARE(table()->model()->rowCount(), 1);
        table()->selectRow(0);
        trigger("mnuShowInFolder");
        QCOMPARE(shown, QStringList{QStringLiteral("/psion/Sums.wks")});
        trigger("mnuOpenEarlierCopy");
        QCOMPARE(opened, QStringList{QStringLiteral("/copies/Sums.wks")});
        trigger("mnuCopyPath");
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("/psion/Sums.wks"));
        trigger("mnuCopyDetails");
        QVERIFY(QGuiApplication::clipboard()->text().endsWith(
            QStringLiteral("A1: =1-(2-3) comes back as =1-2-3\n")));
        QVERIFY(tip(0).contains(QStringLiteral("Earlier copy: /copies/Sums.wks")));
    }
    void theDetailsTellAllInTheLanguageOfTheWindows() {
        const Translation german("de");
        Transfer sheet = transferOf("Sums.wks", 16'392);
        sheet.duration = std::chrono::milliseconds(17'200);
        sheet.earlierCopy = "/copies/Sums.wks";
        sheet.remarks = {"A1: =1-(2-3) comes back as =1-2-3"};
        list->transferEnded(sheet, {});
        QTRY_COMPARE(table()->model()->rowCount(), 1);
        QCOMPARE(
            tip(0).section(u'\n', 1),
            QStringLiteral("Name: Sums.wks\nRichtung: Laden\nBytes: 16.392\nDauer: 17,2 s\n"
                           "Tempo: 953 Bytes/s\nErgebnis: vollständig, 1 Formel geändert\n/psion/Sums.wks\n"
                           "Frühere Fassung: /copies/Sums.wks\nA1: =1-(2-3) kommt als =1-2-3 zurück"));
    }
    void theMenuOffersOnlyWhatCanBeDone() {
        Transfer listing = transferOf("*.odb");
        listing.kind = TransferKind::Listing;
        Transfer nameless;
        list->transferEnded(nameless, {TransferResult::Refused, 190, "invalid request"});
        list->transferEnded(listing, {});
        QTRY_COMPARE(table()->model()->rowCount(), 2);
        QVERIFY(!entry("mnuCopyDetails")->isEnabled());
        table()->selectRow(0);
        QVERIFY(!entry("mnuOpen")->isEnabled());
        QVERIFY(entry("mnuShowInFolder")->isEnabled());
        QVERIFY(!entry("mnuOpenEarlierCopy")->isEnabled());
        table()->selectRow(1);
        QVERIFY(!entry("mnuShowInFolder")->isEnabled());
        QVERIFY(!entry("mnuCopyPath")->isEnabled());
        QVERIFY(entry("mnuCopyDetails")->isEnabled());
        QTest::keyClick(table(), Qt::Key_Return);
        QVERIFY(opened.isEmpty());
    }
    void theMenuAppearsWhereItIsAskedFor() {
        list->transferEnded(transferOf("Memo.odb"), {});
        QTRY_COMPARE(table()->model()->rowCount(), 1);
        Q_EMIT table()->customContextMenuRequested(QPoint(5, 5));
        auto* menu = child<QMenu>("mnuTransfer");
        QVERIFY(menu->isVisible());
        menu->close();
    }
    void aMinimisedWindowComesBack() {
        window->showMinimized();
        window->present();
        QVERIFY(!window->isMinimized());
    }
    void headingsAndNumbersStandAboveEachOther() {
        QAbstractItemModel* model = table()->model();
        list->transferEnded(transferOf("Memo.odb"), {});
        QTRY_COMPARE(model->rowCount(), 1);
        for (int column = 0; column < model->columnCount(); ++column) {
            QVERIFY(!model->headerData(column, Qt::Horizontal).toString().isEmpty());
            QCOMPARE(model->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole),
                     model->index(0, column).data(Qt::TextAlignmentRole));
        }
        QVERIFY(!model->headerData(0, Qt::Horizontal, Qt::DecorationRole).isValid());
        QVERIFY(!model->headerData(0, Qt::Vertical).isValid());
        QVERIFY(!model->index(0, 0).data(Qt::DecorationRole).isValid());
    }
    void isForEverybody() {
        list->transferEnded(transferOf("Memo.odb"), {});
        QTRY_COMPARE(table()->model()->rowCount(), 1);
        QCOMPARE(test::accessibilityFaults(*window), QStringList());
    }

    void whatIsNotThereIsNotHandedToTheDesktop() {
        const QTemporaryDir folder;
        const std::string gone = folder.filePath(QStringLiteral("gone/Memo.odb")).toStdString();
        QVERIFY(openOnDesktop(gone).endsWith(QStringLiteral("Memo.odb is not there any more.")));
        QVERIFY(showInFolder(gone).endsWith(QStringLiteral("gone is not there any more.")));
    }

  private:
    void open(std::vector<EndedTransfer> earlier) {
        window.reset();
        list = std::make_unique<TransferList>([](const DateTime& time) { return time; }, std::move(earlier));
        window = std::make_unique<frmTransfers>(
            *list, frmTransfers::Actions{[this](const std::string& path) {
                                             opened.append(QString::fromStdString(path));
                                             return answer;
                                         },
                                         [this](const std::string& path) {
                                             shown.append(QString::fromStdString(path));
                                             return answer;
                                         }});
        window->present();
    }
    template <typename Child>
    Child* child(const char* name) const {
        auto* found = window->findChild<Child*>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("%s is missing", name);
        }
        return found;
    }
    QTableView* table() const { return child<QTableView>("tblTransfers"); }
    QAction* entry(const char* name) const { return child<QAction>(name); }
    void trigger(const char* name) const {
        QVERIFY2(entry(name)->isEnabled(), name);
        entry(name)->trigger();
    }
    QString cell(int row, int column) const { return table()->model()->index(row, column).data().toString(); }
    QString tip(int row) const { return table()->model()->index(row, 0).data(Qt::ToolTipRole).toString(); }

    std::unique_ptr<TransferList> list;
    std::unique_ptr<frmTransfers> window;
    QStringList opened;
    QStringList shown;
    QString answer;
};

}  // namespace
}  // namespace velmora

QTEST_MAIN(velmora::FrmTransfersTest)
#include "frm_transfers_test.moc"
