#include "apps/desktop_dialogs.h"

#include <QCoreApplication>
#include <utility>

#include "doctor/port_examination.h"
#include "eventloop/qt_event_yield.h"
#include "eventloop/qt_timer.h"
#include "serial/adapter_latency.h"
#include "serial/mode_string.h"
#include "serial/port_list.h"
#include "ui/qt/frm_cable_check.h"
#include "ui/qt/frm_setup.h"
#include "ui/qt/help_key.h"
#include "ui/qt/native_folder_browser.h"

namespace velmora {

DesktopDialogs::DesktopDialogs(const Clock& clock, PortNames& portNames, const DesktopHelp& help,
                               DesktopTexts& texts)
    : clock_(clock), portNames_(portNames), help_(help), texts_(texts), debugWindow_(clock) {
    onHelpKey(debugWindow_, help_.about(debugWindow_, HelpTopic::Monitor));
}

void DesktopDialogs::runSetup(QWidget& window, SerialPort& port, ServerOptions& options,
                              TransferSettings& transfer, const SetupModel::Probe& probe,
                              const AdapterEvents& adapters) {
    frmSetup dialog(
        port, options, transfer, probe, [this] { return listPorts(portNames_); }, &window);
    dialog.offerHelp(help_.about(dialog, HelpTopic::Setup));
    dialog.offerTexts(texts_.names());
    dialog.setFailureReason(failureReason_);
    dialog.setDeviceTip([&port](const std::string& device) { return latencyTip(device, port.Settings()); });
    dialog.setCheckCable([&](int number, const std::string& mode) { checkCable(dialog, number, mode); });
    if (!adapters.live() && !std::exchange(newsMissed_, true)) {
        dialog.setDeviceHint(QCoreApplication::translate(
            "DesktopDialogs", "The system tells nothing of adapters: the list is looked up twice a second."));
    }
    QtTimer timer;
    AdapterFollower follower(timer, adapters.live(), [&dialog] { dialog.refreshDevices(); });
    follower_ = &follower;
    const bool accepted = dialog.exec() == QDialog::Accepted;
    follower_ = nullptr;
    if (const auto chosen = dialog.chosenTexts(); accepted && chosen) {
        texts_.take(*chosen, window);
    }
}

/// The server is stopped while the setup dialog is open, so the port is free.
void DesktopDialogs::checkCable(QWidget& setup, int number, const std::string& mode) {
    const std::string device = portNames_.device(number).value_or("COM" + std::to_string(number));
    const LineSettings settings = parseModeString(mode).value_or(LineSettings());
    frmCableCheck dialog(
        device, settings,
        [&](StepObserver& observer, const std::function<bool()>& stopWanted) {
            QtEventYield yield;
            return examinePort({portNames_, number, device, settings},
                               {yield, [this] { return clock_.monotonic(); }, &observer,
                                [&] { return stopWanted() || (ended_ && ended_()); }});
        },
        &setup);
    dialog.exec();
}

void DesktopDialogs::adaptersChanged() {
    if (follower_ != nullptr) {
        follower_->adaptersChanged();
    }
}

std::string DesktopDialogs::browseForFolder(QWidget& window, FolderQuestion question) {
    question.help = help_.about(window, HelpTopic::Folder);
    return browseForFolderOver(window, question);
}

void DesktopDialogs::offerCapture(std::function<std::string()> capture) {
    debugWindow_.offerCapture(std::move(capture));
}

void DesktopDialogs::toggleDebugWindow() {
    debugWindow_.toggle();
}

void DesktopDialogs::closeDebugWindow() {
    debugWindow_.close();
}

}  // namespace velmora
