// The windows that the desktop program opens beside its main window.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <utility>

#include "apps/desktop_help.h"
#include "apps/desktop_texts.h"
#include "base/clock.h"
#include "link/debug.h"
#include "serial/adapter_events.h"
#include "serial/port_names.h"
#include "serial/serial_port.h"
#include "server/server_options.h"
#include "services/transfer_settings.h"
#include "ui/adapter_follower.h"
#include "ui/folder_choice.h"
#include "ui/qt/frm_debug.h"
#include "ui/setup_model.h"

namespace velmora {

/// The setup dialog, the folder choice and the debug window. All that it is given must outlive it.
class DesktopDialogs {
  public:
    DesktopDialogs(const Clock& clock, PortNames& portNames, const DesktopHelp& help, DesktopTexts& texts);

    /// Shows the setup dialog over the window until the user closes it.
    void runSetup(QWidget& window, SerialPort& port, ServerOptions& options, TransferSettings& transfer,
                  const SetupModel::Probe& probe, const AdapterEvents& adapters);
    /// Whether the program ends, for a cable that is checked in the setup dialog.
    void setEnded(std::function<bool()> ended) { ended_ = std::move(ended); }
    /// Why the port that was probed last cannot be used, for the setup dialog.
    void setFailureReason(std::function<std::string()> reason) { failureReason_ = std::move(reason); }
    /// An adapter has come or gone: a setup dialog that is open shows it.
    void adaptersChanged();
    /// Asks for a folder; empty when the user cancels.
    std::string browseForFolder(QWidget& window, FolderQuestion question);

    /// The protocol trace goes to the debug window.
    TraceSink& traceSink() { return debugWindow_.model(); }
    /// The debug window offers to save what passed over the line, as frmDebug has it.
    void offerCapture(std::function<std::string()> capture);
    /// Shows a hidden debug window, hides a shown one.
    void toggleDebugWindow();
    void closeDebugWindow();

  private:
    void checkCable(QWidget& setup, int number, const std::string& mode);

    const Clock& clock_;
    PortNames& portNames_;
    const DesktopHelp& help_;
    DesktopTexts& texts_;
    std::function<std::string()> failureReason_;
    std::function<bool()> ended_;
    frmDebug debugWindow_;
    bool newsMissed_ = false;              // it was told that the system tells nothing of adapters
    AdapterFollower* follower_ = nullptr;  // of the setup dialog while it is open
};

}  // namespace velmora
