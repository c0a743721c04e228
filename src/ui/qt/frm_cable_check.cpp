#include "ui/qt/frm_cable_check.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "doctor/doctor_report.h"
#include "doctor/unframed.h"
#include "ui/qt/core_texts.h"
#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

enum Column { Mark, Text, kColumns };

QLabel* makeWrapped(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

/// Ticks say it at a glance, words without colours or a good eye.
QString shownMark(StepStatus status) {
    QString words = coreText(QString::fromStdString(std::string(markOf(status))));
    switch (status) {
        case StepStatus::Well:
            return QStringLiteral("\u2713 ") + words;
        case StepStatus::Fault:
            return QStringLiteral("\u2717 ") + words;
        case StepStatus::Noted:
        case StepStatus::Unknown:
            break;
    }
    return words;
}

/// The marks stand in one column.
int widestMark(const QFontMetrics& metrics) {
    int width = 0;
    for (const StepStatus status :
         {StepStatus::Well, StepStatus::Noted, StepStatus::Fault, StepStatus::Unknown}) {
        width = std::max(width, metrics.horizontalAdvance(shownMark(status) + QStringLiteral("  ")));
    }
    return width;
}

}  // namespace

frmCableCheck::frmCableCheck(const std::string& port, const LineSettings& settings,
                             CableCheck::Examine examine, QWidget* parent)
    : QDialog(parent), check_(port, std::move(examine), [this] { showState(); }) {
    setObjectName(QStringLiteral("frmCableCheck"));
    setWindowTitle(tr("Velmora Check Cable"));
    build(port, settings);
    showState();
}

void frmCableCheck::build(const std::string& port, const LineSettings& settings) {
    auto* lblWhat = makeWrapped("lblWhat");
    lblWhat->setText(
        tr("%1 at %2. Start a transfer on the Organiser, so that it calls; the check takes up to a "
           "minute and changes nothing there.")
            .arg(qtSystemText(port), coreText(QString::fromStdString(settingsInWords(settings)))));
    tblSteps = new QTableWidget(0, kColumns);
    tblSteps->setObjectName(QStringLiteral("tblSteps"));
    tblSteps->setAccessibleName(tr("Steps of the check"));
    tblSteps->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tblSteps->setSelectionBehavior(QAbstractItemView::SelectRows);
    tblSteps->setSelectionMode(QAbstractItemView::SingleSelection);
    tblSteps->setTabKeyNavigation(false);
    tblSteps->setShowGrid(false);
    tblSteps->verticalHeader()->hide();
    tblSteps->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tblSteps->horizontalHeader()->hide();
    tblSteps->horizontalHeader()->setStretchLastSection(true);
    tblSteps->setColumnWidth(Mark, widestMark(fontMetrics()) + 2 * fontMetrics().averageCharWidth());
    pbrBusy = new QProgressBar;
    pbrBusy->setObjectName(QStringLiteral("pbrBusy"));
    pbrBusy->setAccessibleName(tr("The check goes on"));
    pbrBusy->setRange(0, 0);
    pbrBusy->setTextVisible(false);
    lblResult = makeWrapped("lblResult");
    QFont strong = font();
    strong.setBold(true);
    lblResult->setFont(strong);
    lblAdvice = makeWrapped("lblAdvice");
    auto* all = new QVBoxLayout(this);
    all->addWidget(lblWhat);
    all->addWidget(tblSteps, 1);
    all->addWidget(pbrBusy);
    all->addWidget(lblResult);
    all->addWidget(lblAdvice);
    all->addLayout(makeButtons());
    pbClose->setFocus();
    resize(fontMetrics().averageCharWidth() * 92, fontMetrics().height() * 26);
}

QHBoxLayout* frmCableCheck::makeButtons() {
    pbStop = new QPushButton;
    pbStop->setObjectName(QStringLiteral("pbStop"));
    pbStop->setAutoDefault(false);
    pbCopy = new QPushButton(tr("Cop&y the result"));
    pbCopy->setObjectName(QStringLiteral("pbCopy"));
    pbCopy->setToolTip(tr("One line for the clipboard, for whoever is asked for help."));
    pbCopy->setAutoDefault(false);
    pbClose = new QPushButton(tr("&Close"));
    pbClose->setObjectName(QStringLiteral("pbClose"));
    pbClose->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(pbStop);
    buttons->addStretch(1);
    buttons->addWidget(pbCopy);
    buttons->addWidget(pbClose);
    connect(pbStop, &QPushButton::clicked, this, &frmCableCheck::stopOrCheckAgain);
    connect(pbCopy, &QPushButton::clicked, this, &frmCableCheck::copyLine);
    connect(pbClose, &QPushButton::clicked, this, &frmCableCheck::reject);
    return buttons;
}

void frmCableCheck::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!std::exchange(shownOnce_, true)) {
        QTimer::singleShot(0, this, &frmCableCheck::check);
    }
}

/// Returns when the check is over; events run in it.
void frmCableCheck::check() {
    if (running() || !isVisible()) {
        return;
    }
    stopping_ = false;
    check_.run();
    if (std::exchange(closing_, false)) {
        done(Rejected);
    }
}

void frmCableCheck::stopOrCheckAgain() {
    if (running()) {
        stop();
    } else {
        // Not within the button's own event, which would last as long as the check.
        QTimer::singleShot(0, this, &frmCableCheck::check);
    }
}

void frmCableCheck::reject() {
    if (!running()) {
        done(Rejected);
        return;
    }
    closing_ = true;
    stop();
}

void frmCableCheck::stop() {
    stopping_ = true;
    check_.stop();
    showState();
}

void frmCableCheck::copyLine() const {
    QGuiApplication::clipboard()->setText(qtSystemText(check_.line()));
}

void frmCableCheck::showState() {
    showSteps();
    pbrBusy->setVisible(running());
    lblResult->setText(coreText(qtSystemText(check_.result())));
    lblResult->setVisible(!lblResult->text().isEmpty());
    lblAdvice->setText(coreText(qtSystemText(check_.advice())));
    lblAdvice->setVisible(!lblAdvice->text().isEmpty());
    const bool over =
        check_.state() == CableCheck::State::Done || check_.state() == CableCheck::State::Stopped;
    pbStop->setText(over ? tr("Check a&gain") : tr("&Stop"));
    pbStop->setEnabled(over || (running() && !stopping_));
    pbCopy->setEnabled(!check_.line().empty());
}

/// Adds the rows that are missing; a check that begins anew has none.
void frmCableCheck::showSteps() {
    const auto& steps = check_.steps();
    tblSteps->setRowCount(std::min(tblSteps->rowCount(), static_cast<int>(steps.size())));
    for (auto row = tblSteps->rowCount(); row < static_cast<int>(steps.size()); ++row) {
        const StepFinding& step = steps[static_cast<std::size_t>(row)];
        tblSteps->insertRow(row);
        tblSteps->setItem(row, Mark, new QTableWidgetItem(shownMark(step.status)));
        tblSteps->setItem(row, Text, new QTableWidgetItem(coreText(qtSystemText(step.text))));
        if (step.status == StepStatus::Fault) {
            QFont strong = font();
            strong.setBold(true);
            tblSteps->item(row, Mark)->setFont(strong);
            tblSteps->item(row, Text)->setFont(strong);
        }
        tblSteps->scrollToBottom();
    }
}

}  // namespace velmora
