// The setup dialog.
#pragma once

#include <QDialog>
#include <QStringList>
#include <array>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "serial/port_identity.h"
#include "ui/qt/device_list.h"
#include "ui/setup_model.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QRadioButton;

namespace velmora {

class PortNumberBox;

/// Shows a SetupModel. The ports are probed once the dialog is on the screen; the probe lets events run, so
/// the dialog may be cancelled meanwhile.
class frmSetup : public QDialog {
    Q_OBJECT

  public:
    /// Checks the cable at a port, with the settings of a mode string, over this dialog.
    using CheckCable = std::function<void(int port, const std::string& mode)>;
    using ListDevices = std::function<std::vector<PortIdentity>()>;

    /// The references must outlive the dialog; `listDevices` names the devices that are present.
    frmSetup(SerialPort& port, ServerOptions& options, TransferSettings& transfer, SetupModel::Probe probe,
             ListDevices listDevices, QWidget* parent = nullptr);

    /// Shows the devices that are present now, for when an adapter has come or gone. The selection and all
    /// else stay; without a change nothing happens.
    void refreshDevices();

    void reject() override;
    /// What sounds when a key is refused or there is no number to check; the desktop's beep at first.
    void setBeep(std::function<void()> beep) { beep_ = std::move(beep); }
    /// What the Help button and F1 do; without it there is no such button.
    void offerHelp(const std::function<void()>& help);
    /// Why the port that was probed last cannot be used, for whoever presses "check"; without it nothing is
    /// said.
    void setFailureReason(std::function<std::string()> reason) { failureReason_ = std::move(reason); }
    /// What is said beside a device of the list; empty for nothing. Without it nothing is.
    void setDeviceTip(DeviceList::Tip tip);
    /// What "Check cable" does; without it there is no such button.
    void setCheckCable(CheckCable check);
    /// Offers texts of the display that are ready made, by these names; without any there is no such choice.
    void offerTexts(const QStringList& names);
    /// Which of them the user has chosen; none while the texts are to stay as they are.
    std::optional<int> chosenTexts() const;
    /// What is said below the list until a device is chosen or the list changes.
    void setDeviceHint(const QString& hint);

  protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void build();
    QGroupBox* makePorts();
    void addDevices(QGridLayout& ports);
    QGroupBox* makeRates();
    QGroupBox* makeOptions();
    QHBoxLayout* makeButtons();
    void orderControls();
    void connectControls();
    void load();
    void showState();
    void showPortMark(int port);
    void showBaud();
    void checkPort();
    void portTextChanged(const QString& text);
    std::function<void(bool)> chosen(std::function<void()> choice);
    void fillDevices();
    void devicesChanged();
    void deviceChosen(const PortIdentity& device);
    void closeNow();

    SetupModel model_;
    ListDevices listDevices_;
    std::function<void()> beep_;
    std::function<std::string()> failureReason_;
    bool reasonShown_ = false;
    CheckCable checkCable_;
    bool shownOnce_ = false;
    bool loading_ = false;
    bool loaded_ = false;
    bool accepting_ = false;
    bool keepFocus_ = false;
    bool showing_ = false;  // the dialog sets its controls itself

    QGroupBox* grpPort = nullptr;
    std::array<QRadioButton*, SetupModel::kOtherPort> obPort{};
    std::array<QLabel*, SetupModel::kOtherPort> portWords{};
    PortNumberBox* txtPortNo = nullptr;
    QPushButton* pbCheckPort = nullptr;
    DeviceList* cboPresentPorts = nullptr;
    QPushButton* pbRefreshPorts = nullptr;
    QLabel* lblDeviceHint = nullptr;
    QLabel* lblStatus = nullptr;
    QPushButton* pbCheckCable = nullptr;
    QGroupBox* grpBaud = nullptr;
    std::array<QRadioButton*, SetupModel::kBaudRates.size()> obBaud{};
    QRadioButton* obBaud_other = nullptr;  // shown when the rate is none of these
    QCheckBox* cbAutoStart = nullptr;
    QComboBox* cboFileType = nullptr;
    QComboBox* cboWksDialect = nullptr;
    QComboBox* cboTexts = nullptr;
    QLabel* lblTexts = nullptr;
    QLabel* lblBusy = nullptr;
    QPushButton* pbOK = nullptr;
    QPushButton* pbCancel = nullptr;
    QPushButton* pbHelp = nullptr;
};

}  // namespace velmora
