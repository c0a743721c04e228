#include "ui/qt/frm_main.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QRegularExpression>
#include <QResizeEvent>
#include <QShortcut>
#include <QStringList>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "server/caption.h"
#include "ui/qt/alert_area.h"
#include "ui/qt/announcer.h"
#include "ui/qt/artwork.h"
#include "ui/qt/core_texts.h"
#include "ui/qt/debug_switch.h"
#include "ui/qt/elided_label.h"
#include "ui/qt/lcd_display.h"
#include "ui/qt/lcd_line.h"
#include "ui/qt/message_label.h"
#include "ui/qt/qt_text.h"

namespace velmora {

frmMain::frmMain(QWidget* parent) : GrowingWindow(parent) {
    installAccessibleRoles();
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QString::fromLatin1(kProgramName));
    setWindowIcon(programIcon());

    imgProgName = new NameImage(this);
    imgProgName->setObjectName(QStringLiteral("imgProgName"));
    imgProgName->setAccessibleName(QString::fromLatin1(kProgramName));
    tlProgVers = new QLabel(this);
    tlProgVers->setObjectName(QStringLiteral("tlProgVers"));
    tlProgVers->setAccessibleName(tr("Version"));

    announcer_ = new Announcer(this);
    makeDisplay();
    makeMessages();
    makeStatistics();
    makeButtons();
    lblDebug = new DebugSwitch(tr("Debug"), this);
    lblDebug->setObjectName(QStringLiteral("lblDebug"));
    lblDebug->setAccessibleName(tr("Debug window"));
    lblDebug->setToolTip(tr("Double-click to show or hide the protocol monitor"));
    lblDebug->hide();
    connect(lblDebug, &DebugSwitch::switched, this, [this] { call(actions_.lblDebug_DblClick); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_D), this), &QShortcut::activated, this,
            [this] { call(actions_.lblDebug_DblClick); });
    arrange();
    connect(this, &GrowingWindow::resizedByUser, this, [this] {
        if (actions_.resized) {
            actions_.resized(isMinimized());
        }
    });
}

void frmMain::call(const std::function<void()>& action) {
    if (action) {
        action();
    }
}

QLabel* frmMain::counter(StatsLabel label) const {
    switch (label) {
        case StatsLabel::BytesRecv:
            return tlBytesRecv;
        case StatsLabel::BytesSent:
            return tlBytesSent;
        case StatsLabel::FilesRecv:
            return tlFilesRecv;
        case StatsLabel::FilesSent:
            return tlFilesSent;
    }
    return tlBytesRecv;
}

QPushButton* frmMain::button(MainButton button) const {
    switch (button) {
        case MainButton::StartStop:
            return pbStartStop;
        case MainButton::Setup:
            return pbSetup;
        case MainButton::Folder:
            return pbFolder;
        case MainButton::Hide:
            return pbHide;
        case MainButton::ShutDown:
            return pbShutDown;
    }
    return pbStartStop;
}

void frmMain::setDisplayLine(int line, const std::string& text) {
    LcdLine& shown = imgBGround->line(line == 1 ? 0 : 1);
    shown.setText(qtText(text));
    shown.setAccessibleDescription(shown.text().trimmed());
}

void frmMain::showStatus(const std::string& text) {
    imgBGround->setToolTip(qtText(text));
    imgBGround->setAccessibleDescription(qtText(text));
    announcer_->say(qtText(text));
    QAccessibleEvent event(imgBGround, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
    Q_EMIT statusShown(qtText(text));
}

void frmMain::say(const std::string& words) {
    announcer_->say(coreText(qtText(words)));
}

void frmMain::showMessages(const MessageLines& messages) {
    messages_ = messages;
    adviceText_.clear();
    warningSign_->setVisible(messages.warning);
    tlWarning->setVisible(messages.warning);
    advice_->hide();
    layOutMessages();
    const bool any = std::any_of(messages.lines.begin(), messages.lines.end(),
                                 [](const MessageLine& line) { return line.visible && !line.text.empty(); });
    if (any || messages.warning) {
        announceMessages();
    } else {
        messageArea_->hide();
        messageArea_->updateGeometry();  // what is hidden does not ask for less room by itself
    }
}

void frmMain::showAdvice(const std::string& text) {
    adviceText_ = coreText(qtSystemText(text));
    layOutAdvice(messageWidth());
    advice_->setAccessibleName(adviceText_);
    advice_->setVisible(!text.empty());
    if (!text.empty()) {
        announceMessages();
    }
}

/// Breaks the messages and the advice into lines of the width that there is.
void frmMain::layOutMessages() {
    const int width = messageWidth();
    for (std::size_t i = 0; i < tlBottomText.size(); ++i) {
        tlBottomText[i]->show(messages_.lines[i], width);
    }
    layOutAdvice(width);
}

void frmMain::layOutAdvice(int width) {
    advice_->setText(elideWords(adviceText_, advice_->fontMetrics(), width));
    advice_->setToolTip(advice_->text() == adviceText_ ? QString() : adviceText_);
    const QRect room(0, 0, width, 0);
    advice_->setFixedHeight(
        advice_->fontMetrics().boundingRect(room, Qt::TextWordWrap, advice_->text()).height());
    if (!adviceText_.isEmpty()) {
        // The room of a second line would part the advice from what it is about.
        tlBottomText[1]->fitToText();
    }
}

/// Readers speak the name of the area, not what stands in it.
void frmMain::announceMessages() {
    QStringList words;
    for (const QLabel* label : std::initializer_list<const QLabel*>{
             tlWarning, tlBottomText[0], tlBottomText[1], tlBottomText[2], advice_}) {
        if (!label->isHidden() && !label->accessibleName().isEmpty()) {
            words << label->accessibleName();
        }
    }
    messageArea_->setAccessibleName(words.join(u' '));
    messageArea_->announce();
}

// The width of a message line, known also while the lines or the window are hidden.
int frmMain::messageWidth() {
    fit();
    const int sign = warningSign_->sizeHint().width() + messageArea_->layout()->spacing();
    return messageArea_->width() - (messages_.warning ? sign : 0);
}

std::string frmMain::statsText(StatsLabel label) const {
    // The counters hold digits, separators and unit letters only.
    return counter(label)->text().toStdString();
}

void frmMain::setStatsText(StatsLabel label, const std::string& text) {
    counter(label)->setText(qtText(text));
    nameCounters();
}

void frmMain::setHeading(StatsHeading heading, const std::string& text) {
    tlStatLabel[static_cast<std::size_t>(heading) - 1]->setText(qtText(text));
    nameCounters();
}

// A screen reader meets a number without its row and column.
void frmMain::nameCounters() {
    const auto name = [this](QLabel* label, std::size_t what, std::size_t where) {
        label->setAccessibleName(
            QStringLiteral("%1 %2: %3")
                .arg(tlStatLabel[what]->text(), tlStatLabel[where]->text(), label->text()));
    };
    for (QLabel* heading : tlStatLabel) {
        heading->setAccessibleName(heading->text());
    }
    name(tlFilesRecv, 0, 2);
    name(tlFilesSent, 0, 3);
    name(tlBytesRecv, 1, 2);
    name(tlBytesSent, 1, 3);
}

void frmMain::showStatistics() {
    for (QLabel* label : tlStatLabel) {
        label->show();
    }
    for (QLabel* label : {tlBytesRecv, tlBytesSent, tlFilesRecv, tlFilesSent}) {
        label->show();
    }
}

void frmMain::setWarningCaption(const std::string& text) {
    tlWarning->setText(qtText(text));
    tlWarning->setAccessibleName(tlWarning->text());
}

void frmMain::setVersion(const std::string& version, const std::string& build) {
    tlProgVers->setText(qtText(version + " " + build));
    tlProgVers->setAccessibleName(tr("Version %1").arg(tlProgVers->text()));
}

void frmMain::setFullVersion(const std::string& version) {
    tlProgVers->setToolTip(qtText(version));
    tlProgVers->setAccessibleDescription(qtText(version));
}

void frmMain::showFolder(const std::string& path) {
    lblFolder->setWhole(QDir::toNativeSeparators(qtSystemText(path)));
}

void frmMain::showDebugLabel(bool visible) {
    lblDebug->setVisible(visible);
}

void frmMain::setButtonEnabled(MainButton which, bool enabled) {
    button(which)->setEnabled(enabled);
    tellOf(which);
}

const QAbstractButton& frmMain::startStopButton() const {
    return *pbStartStop;
}

void frmMain::tellOf(MainButton changed) {
    if (changed == MainButton::StartStop) {
        Q_EMIT startStopChanged();
    }
}

/// A caption of the controller as the button has it, with the letter that Alt presses it by.
QString frmMain::withKey(const std::string& caption) {
    if (caption == "Start") {
        return tr("&Start");
    }
    return caption == "Stop" ? tr("&Stop") : qtText(caption).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void frmMain::setButtonCaption(MainButton which, const std::string& caption) {
    static const QRegularExpression mark(QStringLiteral("&(?!&)"));
    const QString text = withKey(caption);
    button(which)->setText(text);
    button(which)->setAccessibleName(QString(text).remove(mark));
    tellOf(which);
}

void frmMain::setFocus(MainButton which) {
    button(which)->setFocus();
}

void frmMain::setProfile(const std::string& name) {
    profile_ = qtSystemText(name);
    setCaption(kProgramName);
}

void frmMain::setCaption(const std::string& caption) {
    setWindowTitle(titleInProfile(qtText(caption), profile_));
}

// Before the window is shown its state is only noted, and it appears in that state.
void frmMain::minimise() {
    if (hides_ && hides_()) {
        putAway_ = true;
        hide();
        return;
    }
    setWindowState(windowState() | Qt::WindowMinimized);
}

void frmMain::restore() {
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen));
    if (std::exchange(putAway_, false)) {
        show();
    }
}

void frmMain::bringToFront() {
    raise();
    activateWindow();
}

void frmMain::close() {
    closingByProgram_ = true;
    QWidget::close();
    closingByProgram_ = false;
}

void frmMain::closeEvent(QCloseEvent* event) {
    const CloseReason reason = closingByProgram_ ? CloseReason::Program : CloseReason::User;
    if (actions_.queryUnload && !actions_.queryUnload(reason)) {
        event->ignore();
        return;
    }
    event->accept();
    call(actions_.closed);
}

void frmMain::changeEvent(QEvent* event) {
    GrowingWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && actions_.resized) {
        actions_.resized(isMinimized());
    }
}

/// What hides the window instead may come and go; so the tip is made anew each time it is asked for.
bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (watched == pbHide && event->type() == QEvent::ToolTip) {
        tellWhereHideGoes();
    }
    return GrowingWindow::eventFilter(watched, event);
}

void frmMain::tellWhereHideGoes() {
    pbHide->setToolTip(hides_ && hides_() ? tr("Put the window into the tray; the server goes on")
                                          : tr("Minimise the window; the server goes on"));
}

void frmMain::showEvent(QShowEvent* event) {
    GrowingWindow::showEvent(event);
    tellWhereHideGoes();
    if (!event->spontaneous() && actions_.resized) {
        actions_.resized(isMinimized());
    }
}

void frmMain::resizeEvent(QResizeEvent* event) {
    GrowingWindow::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        layOutMessages();
    }
}

}  // namespace velmora
