#include "apps/desktop_tray.h"

#include <QApplication>
#include <utility>

namespace velmora {

DesktopTray::DesktopTray(frmMain& window, const QString& name, const TrayIcon::Actions& actions,
                         TrayIcon::Desktop desktop)
    : icon_(name, actions, std::move(desktop)),
      notices_([] { return QApplication::activeWindow() != nullptr; },
               [this](const Notice& notice) { icon_.notify(notice); }) {
    icon_.mirrorStartStop(window.startStopButton());
    QObject::connect(&window, &frmMain::startStopChanged, &icon_,
                     [this, &window] { icon_.mirrorStartStop(window.startStopButton()); });
    QObject::connect(&window, &frmMain::statusShown, &icon_, &TrayIcon::showStatus);
    QObject::connect(&window, &frmMain::stateShown, &icon_,
                     [this](std::int32_t state) { notices_.serverIs(state); });
    window.hideInsteadOfMinimising([this] { return takesWindow(); });
}

void DesktopTray::follow(ServerProgram& program) {
    program_ = &program;
    program.core().observe(notices_);
    icon_.appear();
}

void DesktopTray::portFailed() {
    const ServerController& controller = program_->controller();
    // A port that does not open is no news to whoever starts the server, nor is one that sleeps.
    if (controller.running() && !controller.asleep()) {
        notices_.portLost(program_->portName());
    }
}

// A dialog that is open would be left behind.
bool DesktopTray::takesWindow() const {
    return program_ != nullptr && program_->core().options.HideToTray && icon_.inTray() &&
           QApplication::activeModalWidget() == nullptr;
}

}  // namespace velmora
