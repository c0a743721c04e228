#include "ui/qt/frm_debug.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSaveFile>
#include <QShortcut>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "ui/qt/capture_saving.h"
#include "ui/qt/log_view.h"
#include "ui/qt/qt_text.h"

namespace velmora {

namespace {

constexpr int kFlushMilliseconds = 50;

}  // namespace

frmDebug::frmDebug(const Clock& clock, QWidget* parent) : QWidget(parent, Qt::Window), model_(clock, *this) {
    setObjectName(QStringLiteral("frmDebug"));
    setWindowTitle(tr("Velmora PLP Monitor"));
    build();
    flushTimer_.setSingleShot(true);
    flushTimer_.setInterval(kFlushMilliseconds);
    connect(&flushTimer_, &QTimer::timeout, this, &frmDebug::showWaiting);
    resize(720, 460);
}

void frmDebug::build() {
    buildLog();
    auto* all = new QVBoxLayout(this);
    all->setMenuBar(buildMenus());
    all->addWidget(txtLog, 1);
    findBar = new QWidget;
    findBar->setLayout(buildFind());
    findBar->hide();
    all->addWidget(findBar);
    all->addLayout(buildFilters());
    all->addLayout(buildLastRow());
}

void frmDebug::buildLog() {
    txtLog = new LogView(lines_, this);
    txtLog->setObjectName("txtLog");
    txtLog->setAccessibleName(tr("Log"));
    txtLog->setContextMenuPolicy(Qt::ActionsContextMenu);
}

QAction* frmDebug::addEntry(const QString& name, const QString& text, const QKeySequence& keys) {
    auto* entry = new QAction(text, this);
    entry->setObjectName(name);
    entry->setShortcut(keys);
    return entry;
}

QMenuBar* frmDebug::buildMenus() {
    auto* save = addEntry("mnuSave", tr("&Save log as…"), QKeySequence::Save);
    connect(save, &QAction::triggered, this, &frmDebug::saveAs);
    auto* copy = addEntry("mnuCopy", tr("&Copy"), QKeySequence::Copy);
    connect(copy, &QAction::triggered, this, &frmDebug::copySelection);
    auto* copyEverything =
        addEntry("mnuCopyAll", tr("Copy &all"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    connect(copyEverything, &QAction::triggered, this, &frmDebug::copyAll);
    auto* select = addEntry("mnuSelectAll", tr("Select a&ll"), QKeySequence::SelectAll);
    connect(select, &QAction::triggered, this, [this] {
        showWaiting();
        txtLog->selectAll();
    });
    auto* find = addEntry("mnuFind", tr("&Find…"), QKeySequence(Qt::CTRL | Qt::Key_F));
    connect(find, &QAction::triggered, this, &frmDebug::showFind);
    auto* next = addEntry("mnuFindNext", tr("Find &next"), QKeySequence(Qt::Key_F3));
    connect(next, &QAction::triggered, this, [this] { this->find(LogLines::Direction::Forward); });
    auto* previous = addEntry("mnuFindPrevious", tr("Find &previous"), QKeySequence(Qt::SHIFT | Qt::Key_F3));
    connect(previous, &QAction::triggered, this, [this] { this->find(LogLines::Direction::Backward); });
    auto* bar = new QMenuBar;
    mnuSaveCapture = addEntry("mnuSaveCapture", tr("Save ca&pture…"), {});
    mnuSaveCapture->setVisible(false);
    connect(mnuSaveCapture, &QAction::triggered, this, &frmDebug::saveCaptureAs);
    bar->addMenu(tr("&File"))->addActions({save, mnuSaveCapture});
    QMenu* edit = bar->addMenu(tr("&Edit"));
    edit->addActions({copy, copyEverything, select});
    edit->addSeparator();
    edit->addActions({find, next, previous});
    txtLog->addActions(edit->actions());
    txtLog->addAction(save);
    return bar;
}

QBoxLayout* frmDebug::buildFind() {
    txtFind = new QLineEdit;
    txtFind->setObjectName("txtFind");
    auto* label = new QLabel(tr("F&ind:"));
    label->setBuddy(txtFind);
    connect(txtFind, &QLineEdit::textChanged, this, [this] { tellFound({}); });
    connect(txtFind, &QLineEdit::returnPressed, this, [this] { find(LogLines::Direction::Forward); });
    auto* next = new QPushButton(tr("Ne&xt"));
    next->setObjectName("cbFindNext");
    connect(next, &QPushButton::clicked, this, [this] { find(LogLines::Direction::Forward); });
    auto* previous = new QPushButton(tr("&Previous"));
    previous->setObjectName("cbFindPrevious");
    connect(previous, &QPushButton::clicked, this, [this] { find(LogLines::Direction::Backward); });
    lblFound = new QLabel;
    lblFound->setObjectName("lblFound");
    auto* away = new QShortcut(QKeySequence(Qt::Key_Escape), findBar);
    away->setContext(Qt::WidgetWithChildrenShortcut);
    connect(away, &QShortcut::activated, this, &frmDebug::hideFind);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(label);
    row->addWidget(txtFind, 1);
    row->addWidget(next);
    row->addWidget(previous);
    row->addWidget(lblFound, 1);
    return row;
}

QBoxLayout* frmDebug::buildFilters() {
    auto* showWhat = new QGroupBox(tr("Show what?"));
    auto* modes = new QHBoxLayout(showWhat);
    const std::array<QString, 3> names{tr("Everything"), tr("Data"), tr("Custom")};
    for (std::size_t i = 0; i < names.size(); ++i) {
        obShowWhat[i] = new QRadioButton(names[i]);
        obShowWhat[i]->setObjectName(QStringLiteral("obShowWhat_%1").arg(i + 1));
        obShowWhat[i]->setChecked(i == 0);
        connect(obShowWhat[i], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on) {
                model_.obShowWhat_Click(static_cast<DebugLogModel::ShowWhat>(i + 1));
            }
        });
        modes->addWidget(obShowWhat[i]);
    }
    auto* detected = new QGroupBox(tr("Auto-detected"));
    auto* boxes = new QHBoxLayout(detected);
    for (std::size_t i = 0; i < chkShowWhat.size(); ++i) {
        chkShowWhat[i] = new QCheckBox;
        chkShowWhat[i]->setObjectName(QStringLiteral("chkShowWhat_%1").arg(i));
        chkShowWhat[i]->hide();
        connect(chkShowWhat[i], &QCheckBox::pressed, this, [this] { toggled_ = false; });
        connect(chkShowWhat[i], &QCheckBox::toggled, this, [this, i] {
            toggled_ = true;
            switchCategory(i);
        });
        // A click on a greyed box toggles nothing, and one that toggles leaves its own look behind.
        connect(chkShowWhat[i], &QCheckBox::clicked, this,
                [this, i] { toggled_ ? categoryChanged(i) : switchCategory(i); });
        boxes->addWidget(chkShowWhat[i]);
    }
    boxes->addStretch();
    auto* filters = new QHBoxLayout;
    filters->addWidget(showWhat);
    filters->addWidget(detected, 1);
    return filters;
}

/// A box that is on, active or greyed, goes off; the toolkit's own third state plays no part.
void frmDebug::switchCategory(std::size_t index) {
    model_.chkShowWhat_Click(index, model_.category(index).value == DebugLogModel::kOff);
}

QBoxLayout* frmDebug::buildLastRow() {
    chkFollow = new QCheckBox(tr("Follow the e&nd"));
    chkFollow->setObjectName("chkFollow");
    chkFollow->setChecked(txtLog->following());
    connect(chkFollow, &QCheckBox::toggled, txtLog, &LogView::setFollowing);
    connect(txtLog, &LogView::followingChanged, chkFollow, &QCheckBox::setChecked);
    chkHidePolling = new QCheckBox(tr("&Hide idle polling"));
    chkHidePolling->setObjectName("chkHidePolling");
    chkHidePolling->setToolTip(tr(
        "Leave out what passes while nothing happens. It is kept, shown again when asked for, and saved."));
    connect(chkHidePolling, &QCheckBox::toggled, this, &frmDebug::hidePolling);
    chkLogToDisk = new QCheckBox(tr("&Log to disk"));
    chkLogToDisk->setObjectName("chkLogToDisk");
    connect(chkLogToDisk, &QCheckBox::toggled, this, [this](bool on) { model_.setLogToDisk(on); });
    cbClear = new QPushButton(tr("&Clear"));
    cbClear->setObjectName("cbClear");
    connect(cbClear, &QPushButton::clicked, this, [this] { model_.cbClear_Click(); });
    auto* last = new QHBoxLayout;
    last->addWidget(chkFollow);
    last->addWidget(chkHidePolling);
    last->addWidget(chkLogToDisk);
    last->addStretch();
    last->addWidget(cbClear);
    return last;
}

void frmDebug::toggle() {
    setVisible(model_.toggleShown());
}

void frmDebug::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        model_.setShown(true);
    }
}

void frmDebug::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        model_.setShown(false);
    }
}

void frmDebug::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        using State = DebugLogModel::WindowState;
        model_.setWindowState(isMinimized()                     ? State::Minimised
                              : isMaximized() || isFullScreen() ? State::Maximised
                                                                : State::Normal);
    }
}

void frmDebug::appendLine(const std::string& line, bool polling) {
    waiting_.push_back({line, polling});
    if (!flushTimer_.isActive()) {
        flushTimer_.start();
    }
}

void frmDebug::showWaiting() {
    flushTimer_.stop();
    lines_.append(std::exchange(waiting_, {}));
}

/// A held view stays at the line that it begins with, and keeps the current one; the end is followed on.
void frmDebug::hidePolling(bool hidden) {
    showWaiting();
    const auto placeOf = [this](const QModelIndex& line) {
        return line.isValid() ? std::optional(lines_.place(line.row())) : std::nullopt;
    };
    const auto current = placeOf(txtLog->currentIndex());
    const auto top = placeOf(txtLog->indexAt(QPoint()));
    lines_.setPollingHidden(hidden);
    const auto lineAt = [this](std::size_t place) { return lines_.index(lines_.rowFrom(place), 0); };
    if (txtLog->following()) {
        return;
    }
    if (current) {
        txtLog->setCurrentIndex(lineAt(*current));
    }
    if (top) {
        txtLog->scrollTo(lineAt(*top), QAbstractItemView::PositionAtTop);
    }
}

void frmDebug::clearLog() {
    waiting_.clear();
    lines_.clear();
}

void frmDebug::copySelection() {
    const QString text = txtLog->selectedText();
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

void frmDebug::copyAll() {
    showWaiting();
    QString text;
    for (int row = 0; row < lines_.rowCount(); ++row) {
        text += qtText(lines_.line(row));
        text += '\n';
    }
    QGuiApplication::clipboard()->setText(text);
}

void frmDebug::saveAs() {
    QFileDialog dialog(this, tr("Save log"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({tr("Text files (*.txt)"), tr("All files (*)")});
    dialog.setDefaultSuffix(QStringLiteral("txt"));
    bool saved = false;
    while (!saved && dialog.exec() == QDialog::Accepted) {
        saved = saveTo(dialog.selectedFiles().constFirst());
    }
}

bool frmDebug::saveTo(const QString& path) {
    showWaiting();
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    bool written = file.open(QIODevice::WriteOnly | QIODevice::Text);
    for (auto each = lines_.lines().begin(); written && each != lines_.lines().end(); ++each) {
        const std::string line = toUtf8(each->text) + '\n';
        written = file.write(line.data(), static_cast<qint64>(line.size())) >= 0;
    }
    if (written && file.commit()) {
        return true;
    }
    showFailedSave(tr("The log could not be saved in\n%1\n\n%2\n\nChoose another folder or name.")
                       .arg(QDir::toNativeSeparators(path), file.errorString()));
    return false;
}

void frmDebug::showFailedSave(const QString& words) {
    QMessageBox box(QMessageBox::Critical, windowTitle(), words, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void frmDebug::offerCapture(std::function<std::string()> capture) {
    capture_ = std::move(capture);
    mnuSaveCapture->setVisible(true);
}

void frmDebug::saveCaptureAs() {
    askAndSaveCapture(*this, capture_());
}

bool frmDebug::saveCaptureTo(const QString& path) {
    return saveCapture(*this, path, capture_());
}

void frmDebug::showFind() {
    findBar->show();
    txtFind->setFocus(Qt::ShortcutFocusReason);
    txtFind->selectAll();
}

void frmDebug::hideFind() {
    findBar->hide();
    txtLog->setFocus(Qt::OtherFocusReason);
}

void frmDebug::find(LogLines::Direction direction) {
    if (txtFind->text().isEmpty()) {
        showFind();
        return;
    }
    findBar->show();
    showWaiting();
    const bool forward = direction == LogLines::Direction::Forward;
    const int from = txtLog->currentIndex().row();
    const auto part = fromUtf8(txtFind->text().toStdString());
    const auto row = part ? lines_.find(*part, from, direction) : std::nullopt;
    if (!row) {
        tellFound(tr("Not found"));
        return;
    }
    const QModelIndex index = lines_.index(*row, 0);
    txtLog->setFollowing(false);
    txtLog->setCurrentIndex(index);
    txtLog->scrollTo(index, QAbstractItemView::PositionAtCenter);
    const bool round = from >= 0 && (forward ? *row <= from : *row >= from);
    QString words = tr("Line %1 of %2");
    if (round) {
        words =
            forward ? tr("Line %1 of %2, from the beginning again") : tr("Line %1 of %2, from the end again");
    }
    tellFound(words.arg(*row + 1).arg(lines_.rowCount()));
}

// Beside the line and spoken with it.
void frmDebug::tellFound(const QString& words) {
    lblFound->setText(words);
    txtFind->setAccessibleDescription(words);
}

void frmDebug::categoryChanged(std::size_t index) {
    const DebugLogModel::Category& category = model_.category(index);
    QCheckBox* box = chkShowWhat[index];
    const QSignalBlocker shownOnly(box);
    box->setText(qtText(category.caption));
    box->setVisible(category.visible);
    // The third state is there only while it is shown: a box that is not tristate never looks greyed.
    box->setTristate(category.value == DebugLogModel::kInactive);
    box->setCheckState(category.value == DebugLogModel::kOff  ? Qt::Unchecked
                       : category.value == DebugLogModel::kOn ? Qt::Checked
                                                              : Qt::PartiallyChecked);
}

}  // namespace velmora
