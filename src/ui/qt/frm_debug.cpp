#include "ui/qt/frm_debug.h"

#include <QCheckBox>
#include <QEvent>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "base/byte_text.h"

namespace velmora {

namespace {

constexpr int kFlushMilliseconds = 50;

}  // namespace

frmDebug::frmDebug(const Clock& clock, QWidget* parent) : QWidget(parent, Qt::Window), model_(clock, *this) {
    setWindowTitle(QStringLiteral("Velmora PLP Monitor"));
    build();
    flushTimer_.setSingleShot(true);
    flushTimer_.setInterval(kFlushMilliseconds);
    connect(&flushTimer_, &QTimer::timeout, this, &frmDebug::flush);
    resize(720, 460);
}

void frmDebug::build() {
    txtLog = new QPlainTextEdit;
    txtLog->setObjectName("txtLog");
    txtLog->setAccessibleName(QStringLiteral("Log"));
    txtLog->setReadOnly(true);
    txtLog->setTabChangesFocus(true);
    txtLog->setUndoRedoEnabled(false);
    txtLog->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtLog->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto* showWhat = new QGroupBox(QStringLiteral("Show what?"));
    auto* modes = new QHBoxLayout(showWhat);
    const std::array<const char*, 3> names{"Everything", "Data", "Custom"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        obShowWhat[i] = new QRadioButton(QString::fromLatin1(names[i]));
        obShowWhat[i]->setObjectName(QStringLiteral("obShowWhat_%1").arg(i + 1));
        connect(obShowWhat[i], &QRadioButton::clicked, this,
                [this, i] { model_.obShowWhat_Click(static_cast<DebugLogModel::ShowWhat>(i + 1)); });
        modes->addWidget(obShowWhat[i]);
    }
    obShowWhat[0]->setChecked(true);
    auto* detected = new QGroupBox(QStringLiteral("Auto-detected"));
    auto* boxes = new QHBoxLayout(detected);
    for (std::size_t i = 0; i < chkShowWhat.size(); ++i) {
        chkShowWhat[i] = new QCheckBox;
        chkShowWhat[i]->setObjectName(QStringLiteral("chkShowWhat_%1").arg(i));
        chkShowWhat[i]->hide();
        // A box that is on, active or greyed, goes off; the toolkit's own third state plays no part.
        connect(chkShowWhat[i], &QCheckBox::clicked, this,
                [this, i] { model_.chkShowWhat_Click(i, model_.category(i).value == DebugLogModel::kOff); });
        boxes->addWidget(chkShowWhat[i]);
    }
    boxes->addStretch();
    chkLogToDisk = new QCheckBox(QStringLiteral("&Log to disk"));
    chkLogToDisk->setObjectName("chkLogToDisk");
    connect(chkLogToDisk, &QCheckBox::toggled, this, [this](bool on) { model_.setLogToDisk(on); });
    cbClear = new QPushButton(QStringLiteral("&Clear"));
    cbClear->setObjectName("cbClear");
    connect(cbClear, &QPushButton::clicked, this, [this] { model_.cbClear_Click(); });
    auto* filters = new QHBoxLayout;
    filters->addWidget(showWhat);
    filters->addWidget(detected, 1);
    auto* last = new QHBoxLayout;
    last->addWidget(chkLogToDisk);
    last->addStretch();
    last->addWidget(cbClear);
    auto* all = new QVBoxLayout(this);
    all->addWidget(txtLog, 1);
    all->addLayout(filters);
    all->addLayout(last);
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

void frmDebug::appendLine(const std::string& line) {
    if (!waiting_.isEmpty()) {
        waiting_ += '\n';
    }
    waiting_ += QString::fromStdString(toUtf8(line));
    if (!flushTimer_.isActive()) {
        flushTimer_.start();
    }
}

void frmDebug::flush() {
    if (!waiting_.isEmpty()) {
        txtLog->appendPlainText(waiting_);
        waiting_.clear();
    }
}

void frmDebug::clearLog() {
    waiting_.clear();
    txtLog->clear();
}

void frmDebug::categoryChanged(std::size_t index) {
    const DebugLogModel::Category& category = model_.category(index);
    QCheckBox* box = chkShowWhat[index];
    box->setText(QString::fromStdString(toUtf8(category.caption)));
    box->setVisible(category.visible);
    box->setCheckState(category.value == DebugLogModel::kOff  ? Qt::Unchecked
                       : category.value == DebugLogModel::kOn ? Qt::Checked
                                                              : Qt::PartiallyChecked);
    box->setTristate(false);
}

}  // namespace velmora
