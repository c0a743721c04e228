#include "ui/qt/frm_transfers.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHideEvent>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QShowEvent>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "transfers/transfer_text.h"
#include "ui/qt/core_texts.h"
#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

/// The widest text that a column is made for; the last one takes the rest of the window.
constexpr std::array<const char*, TransferList::kColumns> kWidest = {"2026-12-30 20:00:00 ",
                                                                     "CONTACTS.odb   ",
                                                                     "Direction ",
                                                                     "65,535 of 65,535 ",
                                                                     "1,000.0 s ",
                                                                     "1,000 bytes/s ",
                                                                     ""};

/// Words that keep away from the numbers before them, which end where these begin.
class IndentedWords : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override {
        constexpr QChar kEnSpace(0x2002);
        return kEnSpace + QStyledItemDelegate::displayText(value, locale);
    }
};

}  // namespace

frmTransfers::frmTransfers(TransferList& list, Actions actions, QWidget* parent)
    : QWidget(parent, Qt::Window), actions_(std::move(actions)), table_(list, this) {
    setObjectName(QStringLiteral("frmTransfers"));
    setWindowTitle(tr("Velmora Transfers"));
    buildTable();
    buildMenu();
    lblTold = new QLabel;
    lblTold->setObjectName(QStringLiteral("lblTold"));
    lblTold->setTextFormat(Qt::PlainText);
    lblTold->setWordWrap(true);
    lblTold->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tblTransfers, 1);
    layout->addWidget(lblTold);
    connect(&table_, &TransferTable::rowsInserted, this, &frmTransfers::showWhetherEmpty);
    showWhetherEmpty();
    offerActions();
    const int wanted = tblTransfers->horizontalHeader()->sectionPosition(TransferList::Result) +
                       resultWidth() + 8 * fontMetrics().averageCharWidth();
    resize(std::max(860, wanted), 420);
}

void frmTransfers::buildTable() {
    tblTransfers = new QTableView;
    tblTransfers->setObjectName(QStringLiteral("tblTransfers"));
    tblTransfers->setAccessibleName(tr("Transfers"));
    tblTransfers->setModel(&table_);
    tblTransfers->setSelectionBehavior(QAbstractItemView::SelectRows);
    tblTransfers->setSelectionMode(QAbstractItemView::SingleSelection);
    tblTransfers->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tblTransfers->setTabKeyNavigation(false);
    tblTransfers->setShowGrid(false);
    tblTransfers->setAlternatingRowColors(true);
    tblTransfers->setWordWrap(false);
    tblTransfers->setContextMenuPolicy(Qt::CustomContextMenu);
    tblTransfers->verticalHeader()->hide();
    tblTransfers->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    tblTransfers->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    tblTransfers->setItemDelegateForColumn(TransferList::Result, new IndentedWords(tblTransfers));
    QHeaderView* header = tblTransfers->horizontalHeader();
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    for (int column = 0; column < header->count() - 1; ++column) {
        header->resizeSection(column, columnWidth(column));
    }
    connect(tblTransfers, &QTableView::doubleClicked, this, [this] {
        offerActions();
        mnuOpen->trigger();
    });
    connect(tblTransfers->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmTransfers::offerActions);
    connect(tblTransfers, &QTableView::customContextMenuRequested, this, [this](const QPoint& at) {
        offerActions();
        menu_->popup(tblTransfers->viewport()->mapToGlobal(at));
    });
    lblNone = new QLabel(tr("Nothing was transferred yet."), tblTransfers->viewport());
    lblNone->setObjectName(QStringLiteral("lblNone"));
    lblNone->move(12, 12);
}

int frmTransfers::columnWidth(int column) const {
    const QString widest = QLatin1String(kWidest[static_cast<std::size_t>(column)]);
    int width = fontMetrics().horizontalAdvance(widest);
    QStringList words{table_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                      coreText(widest.trimmed())};
    if (column == TransferList::Direction) {
        for (const TransferDirection direction : {TransferDirection::Save, TransferDirection::Load}) {
            words.append(coreText(QString::fromLatin1(nameOf(direction))));
        }
    }
    for (const QString& word : words) {
        width = std::max(width, fontMetrics().horizontalAdvance(word + QLatin1Char(' ')));
    }
    return width + 2 * fontMetrics().averageCharWidth();
}

/// Room for the results that are met every day; rarer ones are cut, and whole in the tip.
int frmTransfers::resultWidth() const {
    Transfer sheet;
    sheet.remarks.resize(23);
    int width = 0;
    for (const std::string& result : {resultText(sheet, {TransferResult::Complete, 0, {}}),
                                      resultText({}, {TransferResult::Incomplete, 0, "the link ended"}),
                                      resultText({}, {TransferResult::Refused, 189, "no such file"})}) {
        width = std::max(width, fontMetrics().horizontalAdvance(coreText(qtText(result))));
    }
    return width;
}

QAction* frmTransfers::addEntry(const QString& name, const QString& text, const QKeySequence& keys,
                                void (frmTransfers::*deed)()) {
    auto* entry = new QAction(text, this);
    entry->setObjectName(name);
    entry->setShortcut(keys);
    entry->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(entry, &QAction::triggered, this, [this, entry, deed] {
        // The transfer may be dropped while the menu is open.
        offerActions();
        if (entry->isEnabled()) {
            (this->*deed)();
        }
    });
    menu_->addAction(entry);
    tblTransfers->addAction(entry);
    return entry;
}

void frmTransfers::buildMenu() {
    menu_ = new QMenu(this);
    menu_->setObjectName(QStringLiteral("mnuTransfer"));
    mnuOpen = addEntry("mnuOpen", tr("&Open"), QKeySequence(Qt::Key_Return), &frmTransfers::openFile);
    mnuShowInFolder = addEntry("mnuShowInFolder", tr("&Show in its folder"),
                               QKeySequence(Qt::CTRL | Qt::Key_Return), &frmTransfers::showInFolder);
    mnuOpenEarlierCopy =
        addEntry("mnuOpenEarlierCopy", tr("Open the &earlier copy"), {}, &frmTransfers::openEarlierCopy);
    menu_->addSeparator();
    mnuCopyPath = addEntry("mnuCopyPath", tr("Copy the &path"), QKeySequence::Copy, &frmTransfers::copyPath);
    mnuCopyDetails = addEntry("mnuCopyDetails", tr("Copy the &details"),
                              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), &frmTransfers::copyDetails);
}

void frmTransfers::present() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void frmTransfers::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    table_.setWatched(true);
}

void frmTransfers::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    table_.setWatched(false);
    tell({});
}

/// The transfer that the user means; null when none is selected, or the selected one is just dropped.
const ListedTransfer* frmTransfers::selected() const {
    const QModelIndexList rows = tblTransfers->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : table_.transfer(rows.constFirst().row());
}

void frmTransfers::offerActions() {
    const ListedTransfer* listed = selected();
    const bool named = listed != nullptr && !listed->transfer.path.empty();
    // Of a listing the path is a pattern, and a refused file is often not there.
    const bool file = named && listed->transfer.kind != TransferKind::Listing;
    mnuOpen->setEnabled(file);
    mnuShowInFolder->setEnabled(named);
    mnuOpenEarlierCopy->setEnabled(listed != nullptr && !listed->transfer.earlierCopy.empty());
    mnuCopyPath->setEnabled(named);
    mnuCopyDetails->setEnabled(listed != nullptr);
}

void frmTransfers::openFile() {
    tell(actions_.open(selected()->transfer.path));
}

void frmTransfers::showInFolder() {
    tell(actions_.showInFolder(selected()->transfer.path));
}

void frmTransfers::openEarlierCopy() {
    tell(actions_.open(selected()->transfer.earlierCopy));
}

void frmTransfers::copyPath() {
    QGuiApplication::clipboard()->setText(qtSystemText(selected()->transfer.path));
}

void frmTransfers::copyDetails() {
    const int row = tblTransfers->selectionModel()->selectedRows().constFirst().row();
    QGuiApplication::clipboard()->setText(table_.details(row) + QLatin1Char('\n'));
}

/// Says below the table why something could not be done; nothing for no words.
void frmTransfers::tell(const QString& words) {
    lblTold->setText(words);
    lblTold->setVisible(!words.isEmpty());
}

void frmTransfers::showWhetherEmpty() {
    lblNone->setVisible(table_.rowCount() == 0);
}

}  // namespace velmora
