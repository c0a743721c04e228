#include "apps/desktop_server.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QWindow>

#include "platform/known_folders.h"
#include "serial/open_diagnosis.h"
#include "server/port_test.h"

namespace velmora {

DesktopServer::DesktopServer()
    : platform_([this] { core_.controller().ComTimer_Tick(); }),
      dialogs_(platform_.clock, platform_.portNames),
      debug_(dialogs_.traceSink()),
      box_(&window_),
      core_({window_, box_, platform_.files, platform_.rules, platform_.port, debug_, platform_.ComTimer,
             platform_.PLPtimer, platform_.DisplayTimer, platform_.clock, platform_.zone, platform_.yield}),
      form_(core_.controller(), window_, core_.options, platform_.port, platform_.portNames,
            {{},
             [this] {
                 dialogs_.closeDebugWindow();
                 window_.hide();
             },
             [this] { window_.show(); },
             [this] { placeWindow(); }}),
      ini_(platform_.profiles, platform_.rules, box_, windowsFolder()),
      settingsStore_(ini_, overrides_),
      start_({&platform_.files,
              platform_.rules,
              ini_,
              box_,
              form_,
              core_.crc,
              core_.strings,
              core_.transfer,
              {platform_.folders.applicationData(), platform_.folders.documents()}},
             overrides_),
      registry_(positions_) {
    debug_.showStateOf([this] { return core_.link().linkState(); });
    core_.controller().setClosingActions(
        {&settingsStore_, [this] { saveWindowPlace(); }, [this] { dialogs_.closeDebugWindow(); }});
    core_.controller().onPortFailure([this] { portFailed(); });
    window_.setActions(windowActions());

    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &session_,
                     [this](QSessionManager&) { sessionEnds_ = true; });
    // A session that was about to end and did not: the user is back at our windows.
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &session_, [this](const QWindow* window) {
        if (window != nullptr) {
            sessionEnds_ = false;
        }
    });
}

frmMain::Actions DesktopServer::windowActions() {
    ServerController& controller = core_.controller();
    frmMain::Actions actions;
    actions.pbStartStop_Click = [&controller] { controller.pbStartStop_Click(); };
    actions.pbSetup_Click = [this, &controller] { controller.pbSetup_Click([this] { openSetup(); }); };
    actions.pbFolder_Click = [this] { chooseFolder(); };
    actions.pbHide_Click = [&controller] { controller.pbHide_Click(); };
    actions.pbShutDown_Click = [&controller] { controller.pbShutDown_Click(); };
    actions.lblDebug_DblClick = [this] { dialogs_.toggleDebugWindow(); };
    actions.queryUnload = [this](CloseReason reason) { return queryUnload(reason); };
    actions.closed = [this] { quit(); };
    actions.resized = [&controller](bool minimised) { controller.windowResized(minimised); };
    return actions;
}

bool DesktopServer::queryUnload(CloseReason reason) {
    return core_.controller().queryUnload(sessionEnds_ ? CloseReason::SystemShutdown : reason);
}

void DesktopServer::openSetup() {
    dialogs_.runSetup(window_, platform_.port, core_.options, core_.transfer,
                      [this](std::int16_t port) { return core_.controller().checkPort(port, kProbeModem); });
}

void DesktopServer::chooseFolder() {
    chooseDownloadFolder(
        [this](const FolderQuestion& question) { return dialogs_.browseForFolder(window_, question); },
        core_.strings, core_.transfer, settingsStore_, window_, box_);
}

void DesktopServer::placeWindow() {
    if (desktopPlacesByProgram()) {
        window_.adjustSize();
        QtWindowGeometry geometry(window_);
        registry_.LoadWindowPos(geometry);
    }
}

void DesktopServer::saveWindowPlace() {
    if (desktopPlacesByProgram()) {
        QtWindowGeometry geometry(window_);
        registry_.SaveWindowPos(geometry);
    }
}

/// The warning stands already; this adds why it is so, and what helps.
void DesktopServer::portFailed() {
    const int number = platform_.port.CommPort();
    const std::string device = platform_.portNames.device(number).value_or("COM" + std::to_string(number));
    window_.showAdvice(describeOpenFailure(device, platform_.port.lastErrorNumber()));
}

bool DesktopServer::start(const std::string& commandLine) {
    const StartupReport report = start_.Main(commandLine);
    core_.applySettings(start_.settings());
    return report.outcome == StartupOutcome::Running;
}

int DesktopServer::run() {
    if (!quitting_) {
        QCoreApplication::exec();
    }
    queryUnload(CloseReason::Terminated);
    return 0;
}

void DesktopServer::stop() {
    queryUnload(CloseReason::Terminated);
    quit();
}

/// Ends the event loop, or keeps it from beginning.
void DesktopServer::quit() {
    quitting_ = true;
    QCoreApplication::exit(0);
}

}  // namespace velmora
