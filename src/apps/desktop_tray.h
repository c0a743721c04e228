// The desktop program in the tray: its icon, and the notices that come from there.
#pragma once

#include <cstdint>

#include "apps/server_program.h"
#include "ui/notices.h"
#include "ui/qt/frm_main.h"
#include "ui/qt/tray_icon.h"

namespace velmora {

/// Shows in the tray what the main window shows, and takes the window's place there when it is hidden. The
/// window must outlive it.
class DesktopTray {
  public:
    /// `name`: what the program calls itself.
    DesktopTray(frmMain& window, const QString& name, const TrayIcon::Actions& actions,
                TrayIcon::Desktop desktop);

    /// Follows a server, which this must outlive, and goes into the tray; call it once.
    void follow(ServerProgram& program);
    /// The server's port could not be opened, or failed.
    void portFailed();

  private:
    /// Whether the window is hidden now where it would be minimised.
    bool takesWindow() const;

    TrayIcon icon_;
    Notices notices_;
    ServerProgram* program_ = nullptr;
};

}  // namespace velmora
