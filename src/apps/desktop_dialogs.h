// The windows that the desktop program opens beside its main window.
#pragma once

#include <QWidget>
#include <string>

#include "base/clock.h"
#include "link/debug.h"
#include "serial/serial_port.h"
#include "services/transfer_settings.h"
#include "ui/folder_choice.h"
#include "ui/server_options.h"
#include "ui/setup_model.h"

namespace velmora {

/// The setup dialog, the folder choice and the debug window. The clock must outlive it.
class DesktopDialogs {
  public:
    explicit DesktopDialogs(const Clock& clock);

    /// Shows the setup dialog over the window until the user closes it.
    void runSetup(QWidget& window, SerialPort& port, ServerOptions& options, TransferSettings& transfer,
                  const SetupModel::Probe& probe);
    /// Asks for a folder; empty when the user cancels.
    std::string browseForFolder(QWidget& window, const FolderQuestion& question);

    /// The protocol trace goes to the debug window.
    TraceSink& traceSink() { return noTrace_; }
    /// Shows a hidden debug window, hides a shown one.
    void toggleDebugWindow();
    void closeDebugWindow();

  private:
    /// Nobody sees the trace.
    class NoTrace : public TraceSink {
      public:
        bool logging() const override { return false; }
        bool categoryEnabled(std::string_view /*category*/) override { return false; }
        void addline(const std::string& /*text*/) override {}
    };

    NoTrace noTrace_;
};

}  // namespace velmora
