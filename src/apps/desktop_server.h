// The server of velmora: everything that it is made of, from the port to the window.
#pragma once

#include <QObject>
#include <string>
#include <vector>

#include "apps/desktop_about.h"
#include "apps/desktop_dialogs.h"
#include "apps/desktop_help.h"
#include "apps/desktop_transfers.h"
#include "apps/desktop_tray.h"
#include "apps/native_position_store.h"
#include "apps/platform_parts.h"
#include "apps/server_program.h"
#include "capture/capture_ring.h"
#include "startup/run_overrides.h"
#include "ui/dropped_files.h"
#include "ui/qt/frm_main.h"
#include "ui/qt/qt_message_box.h"
#include "ui/qt/window_position.h"
#include "ui/transfer_speech.h"

namespace velmora {

/// Serves behind a window until the window closes; needs a QApplication.
class DesktopServer {
  public:
    /// `overrides`: what the command line says instead of the configuration file. `desktop`: of the tray.
    explicit DesktopServer(const RunOverrides& overrides = {}, TrayIcon::Desktop desktop = {});
    DesktopServer(const DesktopServer&) = delete;
    DesktopServer& operator=(const DesktopServer&) = delete;

    /// Starts up and shows the window; false when the start failed, which a box has told. `commandLine`: what
    /// stands behind the program's name.
    bool start(const std::string& commandLine);
    /// Serves; returns the exit status of the program once the window has closed.
    int run();
    /// Brings the window to the front, wherever it is.
    void present();
    /// Ends serving: closes the file and the port, saves nothing, asks nothing. For signals.
    void stop();

    frmMain& window() { return window_; }
    ServerController& controller() { return program_.controller(); }

  private:
    frmMain::Actions windowActions();
    TrayIcon::Actions trayActions();
    void unlessADialogIsOpen(const std::function<void()>& action);
    WaitFor waitFor();
    std::string portAdvice();
    bool queryUnload(CloseReason reason);
    void chooseFolder();
    void openSetup();
    void adviseOnPort();
    void showFolder();
    void openFolder();
    void copyDropped(const std::vector<std::string>& paths);
    void closeOtherWindows();
    void placeWindow();
    void saveWindowPlace();
    void quit();

    bool quitting_ = false;
    bool sessionEnds_ = false;  // the desktop session has begun to end

    PlatformParts platform_;
    DesktopHelp help_;
    DesktopTexts texts_;
    DesktopDialogs dialogs_;
    frmMain window_;
    DesktopTray tray_;
    QtMessageBox box_;
    DesktopTransfers transfers_;
    TransferSpeech speech_{[this](const std::string& words) { window_.say(words); }};
    CaptureRing captured_;  // for a fault that is looked into once it has happened
    ServerProgram program_;
    DroppedFiles droppedFiles_;
    DesktopAbout about_;
    NativePositionStore positions_;
    Registry registry_;
    QObject session_;  // ends the connections to the session before anything above ends
};

}  // namespace velmora
