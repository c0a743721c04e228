#include "ui/qt/frm_setup.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/qt/core_texts.h"
#include "ui/qt/device_list.h"
#include "ui/qt/help_key.h"
#include "ui/qt/port_number_box.h"
#include "ui/qt/qt_text.h"
#include "ui/qt/readable_ground.h"

namespace velmora {

frmSetup::frmSetup(SerialPort& port, ServerOptions& options, TransferSettings& transfer,
                   SetupModel::Probe probe, ListDevices listDevices, QWidget* parent)
    : QDialog(parent),
      model_(port, options, transfer, std::move(probe),
             {[this] { showState(); },
              [this] {
                  if (isVisible() && !keepFocus_) {
                      txtPortNo->setFocus();
                  }
              },
              [this] { beep_(); }, [this] { closeNow(); }}),
      listDevices_(std::move(listDevices)),
      beep_([] { QApplication::beep(); }) {
    setWindowTitle(tr("Velmora Setup"));
    build();
    connectControls();
    fillDevices();
    showState();
}

void frmSetup::build() {
    auto* all = new QVBoxLayout(this);
    all->addWidget(makePorts());
    all->addWidget(makeRates());
    all->addWidget(makeOptions());
    all->addLayout(makeButtons());
    orderControls();
}

QGroupBox* frmSetup::makePorts() {
    grpPort = new QGroupBox(tr("Port"));
    grpPort->setObjectName("grpPort");
    auto* ports = new QGridLayout(grpPort);
    ports->setHorizontalSpacing(fontMetrics().horizontalAdvance('0'));
    for (int i = 1; i <= SetupModel::kOtherPort; ++i) {
        auto* button = new QRadioButton(i == SetupModel::kOtherPort ? QStringLiteral("COM")
                                                                    : QStringLiteral("COM%1").arg(i));
        button->setObjectName(QStringLiteral("obPort_%1").arg(i));
        ports->addWidget(button, i - 1, 0);
        obPort[static_cast<std::size_t>(i - 1)] = button;
        button->setBackgroundRole(QPalette::Window);
        button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
        button->setMinimumWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("(o) COM9999")));
        auto* words = new QLabel;
        ports->addWidget(words, i - 1, i == SetupModel::kOtherPort ? 3 : 1, 1,
                         i == SetupModel::kOtherPort ? 1 : 3);
        portWords[static_cast<std::size_t>(i - 1)] = words;
    }
    obPort.back()->setAccessibleName(tr("Other port"));
    txtPortNo = new PortNumberBox;
    txtPortNo->setObjectName("txtPortNo");
    txtPortNo->setAccessibleName(tr("Port number"));
    txtPortNo->setMaximumWidth(fontMetrics().horizontalAdvance('0') * 10);
    pbCheckPort = new QPushButton(tr("chec&k"));
    pbCheckPort->setObjectName("pbCheckPort");
    pbCheckPort->setAutoDefault(false);
    ports->addWidget(txtPortNo, 4, 1);
    ports->addWidget(pbCheckPort, 4, 2);
    ports->setColumnStretch(3, 1);
    addDevices(*ports);
    return grpPort;
}

void frmSetup::addDevices(QGridLayout& ports) {
    cboPresentPorts = new DeviceList;
    cboPresentPorts->setObjectName("cboPresentPorts");
    pbRefreshPorts = new QPushButton(tr("&Refresh"));
    pbRefreshPorts->setObjectName("pbRefreshPorts");
    pbRefreshPorts->setAutoDefault(false);
    ports.addWidget(cboPresentPorts, 5, 0, 1, 3);
    ports.addWidget(pbRefreshPorts, 5, 3, Qt::AlignLeft);
    lblDeviceHint = new QLabel;
    lblDeviceHint->setObjectName("lblDeviceHint");
    lblDeviceHint->setWordWrap(true);
    ports.addWidget(lblDeviceHint, 6, 0, 1, 4);
    lblStatus = new QLabel;
    lblStatus->setObjectName("lblStatus");
    QFont strong = font();
    strong.setBold(true);
    lblStatus->setFont(strong);
    lblStatus->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("COM99  wasn't checked yet")));
    ports.addWidget(lblStatus, 7, 0, 1, 3);
    pbCheckCable = new QPushButton(tr("Check ca&ble…"));
    pbCheckCable->setObjectName("pbCheckCable");
    pbCheckCable->setToolTip(tr("Finds out why nothing comes from the Organiser."));
    pbCheckCable->setAutoDefault(false);
    pbCheckCable->hide();
    ports.addWidget(pbCheckCable, 7, 3, Qt::AlignRight);
}

QGroupBox* frmSetup::makeRates() {
    grpBaud = new QGroupBox(tr("Baud"));
    grpBaud->setObjectName("grpBaud");
    auto* rates = new QHBoxLayout(grpBaud);
    for (std::size_t i = 0; i < obBaud.size(); ++i) {
        const QString rate = QString::number(SetupModel::kBaudRates[i]);
        obBaud[i] = new QRadioButton(rate);
        obBaud[i]->setObjectName("obBaud_" + rate);
        rates->addWidget(obBaud[i]);
    }
    obBaud_other = new QRadioButton;
    obBaud_other->setObjectName("obBaud_other");
    obBaud_other->setToolTip(tr("The Organiser knows none but the other rates."));
    obBaud_other->hide();
    rates->addWidget(obBaud_other);
    return grpBaud;
}

QGroupBox* frmSetup::makeOptions() {
    auto* options = new QGroupBox(tr("Options"));
    auto* optionRows = new QGridLayout(options);
    cbAutoStart = new QCheckBox(tr("&Autostart"));
    cbAutoStart->setObjectName("cbAutoStart");
    cboFileType = new QComboBox;
    cboFileType->setObjectName("cboFileType");
    for (const char* type : SetupModel::kFileTypes) {
        cboFileType->addItem(tr(type));
    }
    auto* typeLabel = new QLabel(tr("&Transfer data-files as"));
    typeLabel->setBuddy(cboFileType);
    optionRows->addWidget(cbAutoStart, 0, 0, 1, 2);
    optionRows->addWidget(typeLabel, 1, 0);
    optionRows->addWidget(cboFileType, 1, 1);
    cboWksDialect = new QComboBox;
    cboWksDialect->setObjectName("cboWksDialect");
    for (const char* dialect : SetupModel::kWksDialects) {
        cboWksDialect->addItem(tr(dialect));
    }
    auto* dialectLabel = new QLabel(tr("&Worksheets (WKS)"));
    dialectLabel->setBuddy(cboWksDialect);
    optionRows->addWidget(dialectLabel, 2, 0);
    optionRows->addWidget(cboWksDialect, 2, 1);
    cboTexts = new QComboBox;
    cboTexts->setObjectName("cboTexts");
    cboTexts->addItem(tr("as they are"));
    cboTexts->hide();
    lblTexts = new QLabel(tr("Te&xts of the display"));
    lblTexts->setBuddy(cboTexts);
    lblTexts->hide();
    optionRows->addWidget(lblTexts, 3, 0);
    optionRows->addWidget(cboTexts, 3, 1);
    return options;
}

QHBoxLayout* frmSetup::makeButtons() {
    lblBusy = new QLabel(tr("Testing the ports..."));
    lblBusy->setObjectName("lblBusy");
    pbOK = new QPushButton(tr("OK"));
    pbOK->setObjectName("pbOK");
    pbOK->setDefault(true);
    pbCancel = new QPushButton(tr("Cancel"));
    pbCancel->setObjectName("pbCancel");
    pbHelp = new QPushButton(tr("Help"));
    pbHelp->setObjectName("pbHelp");
    pbHelp->setAutoDefault(false);
    pbHelp->hide();
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(lblBusy, 1);
    buttons->addWidget(pbOK);
    buttons->addWidget(pbCancel);
    buttons->addWidget(pbHelp);
    return buttons;
}

void frmSetup::orderControls() {
    QWidget* before = obPort[0];
    for (QWidget* next : std::initializer_list<QWidget*>{
             obPort[1],      obPort[2],     obPort[3], obPort[4], txtPortNo, pbCheckPort,  cboPresentPorts,
             pbRefreshPorts, pbCheckCable,  obBaud[0], obBaud[1], obBaud[2], obBaud_other, cbAutoStart,
             cboFileType,    cboWksDialect, cboTexts,  pbOK,      pbCancel,  pbHelp}) {
        setTabOrder(before, next);
        before = next;
    }
}

void frmSetup::connectControls() {
    for (int i = 1; i <= SetupModel::kOtherPort; ++i) {
        connect(obPort[static_cast<std::size_t>(i - 1)], &QRadioButton::toggled, this,
                chosen([this, i] { model_.selectPort(i); }));
    }
    for (std::size_t i = 0; i < obBaud.size(); ++i) {
        connect(obBaud[i], &QRadioButton::toggled, this,
                chosen([this, i] { model_.selectBaud(SetupModel::kBaudRates[i]); }));
    }
    connect(obBaud_other, &QRadioButton::toggled, this,
            chosen([this] { model_.selectBaud(model_.otherBaud().value_or(SetupModel::kBaudRates[0])); }));
    connect(txtPortNo, &QLineEdit::textChanged, this, [this](const QString& text) { portTextChanged(text); });
    connect(txtPortNo, &PortNumberBox::keyRefused, this, [this] { beep_(); });
    connect(txtPortNo, &PortNumberBox::pressed, this, [this] { model_.portTextPressed(); });
    connect(pbCheckPort, &QPushButton::clicked, this, &frmSetup::checkPort);
    connect(cboPresentPorts, &DeviceList::chosen, this, &frmSetup::deviceChosen);
    connect(pbRefreshPorts, &QPushButton::clicked, this, &frmSetup::fillDevices);
    connect(pbCheckCable, &QPushButton::clicked, this,
            [this] { checkCable_(model_.chosenPort(), model_.chosenSettings()); });
    // The model has these already where the dialog itself sets them.
    connect(cbAutoStart, &QCheckBox::toggled, this, [this](bool on) { model_.setAutoStart(on); });
    connect(cboFileType, &QComboBox::currentIndexChanged, this,
            [this](int type) { model_.setFileType(type); });
    connect(cboWksDialect, &QComboBox::currentIndexChanged, this,
            [this](int dialect) { model_.setWksDialect(static_cast<WksDialect>(dialect)); });
    connect(pbOK, &QPushButton::clicked, this, [this] {
        accepting_ = true;
        model_.pbOK_Click();
        accepting_ = false;
    });
    connect(pbCancel, &QPushButton::clicked, this, &frmSetup::reject);
}

void frmSetup::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!shownOnce_) {
        shownOnce_ = true;
        QTimer::singleShot(0, this, &frmSetup::load);
    }
}

void frmSetup::load() {
    if (model_.closed()) {
        return;
    }
    loading_ = true;
    // The port group is disabled meanwhile: the focus waits where the one thing to do is.
    pbCancel->setFocus();
    showState();
    model_.load();
    loading_ = false;
    loaded_ = true;
    if (model_.closed()) {
        return;
    }
    showState();
    if (!focusWidget() || focusWidget() == pbCancel) {
        obPort[static_cast<std::size_t>(model_.selectedPort() - 1)]->setFocus();
    }
    model_.activated();
}

/// What follows when the user, or a tool of his, chooses an option button; not when the dialog shows the
/// choice.
std::function<void(bool)> frmSetup::chosen(std::function<void()> choice) {
    return [this, choice = std::move(choice)](bool on) {
        if (on && !showing_) {
            choice();
        }
    };
}

void frmSetup::showState() {
    const QScopedValueRollback showing(showing_, true);
    // What is chosen while the ports are probed would be overwritten by the result.
    grpPort->setEnabled(!loading_);
    for (int port = 1; port <= SetupModel::kOtherPort; ++port) {
        showPortMark(port);
    }
    if (txtPortNo->text() != qtText(model_.portText())) {
        txtPortNo->setText(qtText(model_.portText()));
    }
    // The box stays open to the mouse, whose press selects the other port.
    txtPortNo->setReadOnly(!model_.portTextEnabled());
    txtPortNo->setFocusPolicy(model_.portTextEnabled() ? Qt::StrongFocus : Qt::ClickFocus);
    pbCheckPort->setEnabled(model_.portTextEnabled());
    lblStatus->setText(coreText(qtText(model_.statusText())));
    pbCheckCable->setEnabled(model_.chosenPort() > 0 && !model_.probing());
    showBaud();
    cbAutoStart->setChecked(model_.autoStart());
    cboFileType->setCurrentIndex(model_.fileType());
    cboWksDialect->setCurrentIndex(static_cast<int>(model_.wksDialect()));
    pbOK->setEnabled(loaded_ && model_.okEnabled() && !model_.probing());
    lblBusy->setText(model_.probing() || loading_ ? tr("Testing the ports...") : QString());
}

void frmSetup::showPortMark(int port) {
    const auto index = static_cast<std::size_t>(port - 1);
    const PortMark& mark = model_.mark(port);
    const QString tip = coreText(qtText(mark.toolTip));
    QRadioButton* button = obPort[index];
    button->setChecked(model_.selectedPort() == port);
    button->setToolTip(tip);
    const QString words = tip.section(' ', 1);
    button->setAccessibleDescription(words);
    portWords[index]->setText(words);
    QPalette colours = palette();
    QColor ground = colours.color(QPalette::Window);
    if (!tip.isEmpty()) {
        const QColor colour(mark.colour.red, mark.colour.green, mark.colour.blue);
        ground = readableGround(colour, ground);
        // Disabled too: the marks appear while the ports are still being tested.
        colours.setColor(QPalette::WindowText, colour);
        colours.setColor(QPalette::Window, ground);
    }
    QFont weight = font();
    weight.setBold(!tip.isEmpty());
    button->setFont(weight);
    button->setPalette(colours);
    button->setAutoFillBackground(ground != palette().color(QPalette::Window));
}

void frmSetup::showBaud() {
    for (std::size_t i = 0; i < obBaud.size(); ++i) {
        if (model_.baud() == SetupModel::kBaudRates[i]) {
            obBaud[i]->setChecked(true);
        }
    }
    if (const auto rate = model_.otherBaud()) {
        obBaud_other->setText(QString::number(*rate));
        obBaud_other->setChecked(model_.baud() == rate);
        obBaud_other->show();
    }
}

void frmSetup::fillDevices() {
    cboPresentPorts->setDevices(listDevices_ ? listDevices_() : std::vector<PortIdentity>());
    devicesChanged();
}

void frmSetup::refreshDevices() {
    if (cboPresentPorts->refresh(listDevices_ ? listDevices_() : std::vector<PortIdentity>())) {
        devicesChanged();
    }
}

void frmSetup::devicesChanged() {
    model_.setPresentPorts(cboPresentPorts->devices());
    const PortIdentity* selected = cboPresentPorts->selected();
    setDeviceHint(selected ? DeviceList::hint(*selected) : QString());
}

void frmSetup::offerHelp(const std::function<void()>& help) {
    connect(pbHelp, &QPushButton::clicked, this, help);
    onHelpKey(*this, help);
    pbHelp->show();
}

void frmSetup::offerTexts(const QStringList& names) {
    cboTexts->addItems(names);
    cboTexts->setVisible(!names.isEmpty());
    lblTexts->setVisible(!names.isEmpty());
}

std::optional<int> frmSetup::chosenTexts() const {
    const int behindFirst = cboTexts->currentIndex() - 1;
    return behindFirst < 0 ? std::nullopt : std::optional(behindFirst);
}

void frmSetup::portTextChanged(const QString& text) {
    if (showing_) {
        return;
    }
    if (std::exchange(reasonShown_, false)) {
        setDeviceHint({});  // it was another port's
    }
    model_.setPortText(fromUtf8(text.toStdString()).value_or("?"));
}

void frmSetup::checkPort() {
    model_.pbCheckPort_Click();
    if (model_.checkFailed() && failureReason_ && !model_.closed()) {
        setDeviceHint(coreText(qtSystemText(failureReason_())));
        reasonShown_ = true;
    }
}

void frmSetup::setDeviceTip(DeviceList::Tip tip) {
    cboPresentPorts->setTip(std::move(tip));
}

void frmSetup::setCheckCable(CheckCable check) {
    checkCable_ = std::move(check);
    pbCheckCable->setVisible(checkCable_ != nullptr);
}

void frmSetup::deviceChosen(const PortIdentity& device) {
    if (model_.selectedPort() != SetupModel::kOtherPort ||
        model_.portText() != std::to_string(device.number)) {
        // The arrow keys choose too: the focus stays in the list.
        keepFocus_ = true;
        model_.setPortText(std::to_string(device.number));
        model_.selectPort(SetupModel::kOtherPort);
        keepFocus_ = false;
    }
    setDeviceHint(DeviceList::hint(device));
}

void frmSetup::setDeviceHint(const QString& hint) {
    lblDeviceHint->setText(hint);
    lblDeviceHint->setVisible(!hint.isEmpty());
    // A wrapped hint does not make a window grow by itself that is shown already.
    if (!hint.isEmpty() && isVisible() && layout()->hasHeightForWidth()) {
        resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
    }
}

void frmSetup::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && loaded_) {
        model_.activated();
    }
}

void frmSetup::reject() {
    model_.pbCancel_Click();
}

void frmSetup::closeNow() {
    done(accepting_ ? Accepted : Rejected);
}

}  // namespace velmora
