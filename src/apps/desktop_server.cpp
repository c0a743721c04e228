#include "apps/desktop_server.h"

#include <QApplication>
#include <QSessionManager>
#include <QWindow>
#include <utility>

#include "arguments/version.h"
#include "capture/pcapng_writer.h"
#include "serial/open_diagnosis.h"
#include "server/caption.h"
#include "server/port_test.h"
#include "ui/qt/desktop_files.h"
#include "ui/qt/dropped_files_box.h"
#include "ui/qt/file_drop.h"
#include "ui/qt/first_frame.h"
#include "ui/qt/help_key.h"
#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

/// What the tray calls the program.
QString shownName(const RunOverrides& overrides) {
    return titleInProfile(QString::fromLatin1(kProgramName), qtSystemText(overrides.profile.value_or("")));
}

}  // namespace

DesktopServer::DesktopServer(const RunOverrides& overrides, TrayIcon::Desktop desktop)
    : platform_([this] { controller().ComTimer_Tick(); }, [this] { return program_.core().soonestFrame(); }),
      help_(platform_),
      texts_(platform_, overrides),
      dialogs_(platform_.clock, platform_.portNames, help_, texts_),
      tray_(window_, shownName(overrides), trayActions(), std::move(desktop)),
      box_(&window_),
      transfers_(platform_, dialogs_.traceSink()),
      program_(platform_, overrides,
               {window_,
                box_,
                dialogs_.traceSink(),
                {{},
                 [this] {
                     closeOtherWindows();
                     window_.hide();
                 },
                 [this] { window_.show(); },
                 [this] {
                     showFolder();
                     placeWindow();
                 }},
                {},
                [this] { return waitFor(); },
                "Stop the server; Check cable in Setup finds out why.",
                [this] { dialogs_.adaptersChanged(); }}),
      droppedFiles_(platform_.files, platform_.rules, program_.core().names(),
                    [this](const std::string& path) { program_.core().earlierCopies().keep(path); }),
      about_(platform_, program_, overrides, captured_, help_),
      positions_(positionStore(overrides.profile)),
      registry_(positions_) {
    controller().setClosingActions(
        {&program_.settingsStore(), [this] { saveWindowPlace(); }, [this] { closeOtherWindows(); }});
    // The warning stands already; this adds why it is so, and what helps.
    controller().onPortFailure([this] {
        window_.showAdvice(portAdvice());
        tray_.portFailed();
    });
    window_.setActions(windowActions());
    if (overrides.profile) {
        window_.setProfile(*overrides.profile);
    }
    window_.setFullVersion(std::string(kProgramName) + " " + fullVersion());
    onHelpKey(window_, help_.about(window_, HelpTopic::MainWindow));
    onHelpKey(transfers_.window(), help_.about(transfers_.window(), HelpTopic::Transfers));
    transfers_.follow(program_.core());
    program_.core().observe(speech_);
    tray_.follow(program_);
    new FileDrop(window_, [this](const std::vector<std::string>& paths) { copyDropped(paths); });
    program_.record(captured_);
    dialogs_.setEnded([this] { return controller().closed(); });
    dialogs_.setFailureReason(
        [this] { return describeOpenFailure(program_.portDevice(), platform_.port.lastErrorNumber()); });
    dialogs_.offerCapture([this] { return pcapngFile(captured_.capture()); });

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
    ServerController& controller = program_.controller();
    frmMain::Actions actions;
    actions.pbStartStop_Click = [&controller] { controller.pbStartStop_Click(); };
    actions.pbSetup_Click = [this, &controller] {
        controller.pbSetup_Click([this] { openSetup(); });
        adviseOnPort();
    };
    actions.pbFolder_Click = [this] { chooseFolder(); };
    actions.pbHide_Click = [&controller] { controller.pbHide_Click(); };
    actions.pbShutDown_Click = [&controller] { controller.pbShutDown_Click(); };
    actions.pbOpenFolder_Click = [this] { openFolder(); };
    actions.pbTransfers_Click = [this] { transfers_.show(); };
    actions.pbAbout_Click = [this] { about_.show(window_); };
    actions.lblDebug_DblClick = [this] { dialogs_.toggleDebugWindow(); };
    actions.queryUnload = [this](CloseReason reason) { return queryUnload(reason); };
    actions.closed = [this] { quit(); };
    actions.resized = [&controller](bool minimised) { controller.windowResized(minimised); };
    return actions;
}

TrayIcon::Actions DesktopServer::trayActions() {
    return {[this] { present(); },
            [this] { unlessADialogIsOpen([this] { controller().pbStartStop_Click(); }); },
            [this] { unlessADialogIsOpen([this] { controller().pbShutDown_Click(); }); }};
}

/// The tray's menu can be used while a dialog holds the windows; the dialog is shown then.
void DesktopServer::unlessADialogIsOpen(const std::function<void()>& action) {
    sessionEnds_ = false;  // the user is here
    if (QApplication::activeModalWidget() != nullptr) {
        present();
    } else {
        action();
    }
}

WaitFor DesktopServer::waitFor() {
    return program_.core().options.Reconnect ? WaitFor::LostPort : WaitFor::Nothing;
}

std::string DesktopServer::portAdvice() {
    std::string reason = program_.describePortFailure();
    if (!program_.core().waitsForPort()) {
        return reason;
    }
    return reason.empty() ? program_.describeWait() : reason + " " + program_.describeWait();
}

bool DesktopServer::queryUnload(CloseReason reason) {
    return controller().queryUnload(sessionEnds_ ? CloseReason::SystemShutdown : reason);
}

void DesktopServer::openSetup() {
    dialogs_.runSetup(
        window_, platform_.port, program_.core().options, program_.core().transfer,
        [this](std::int16_t port) { return controller().checkPort(port, kProbeModem); }, platform_.adapters);
}

/// A server without a port can do nothing, and shows that only in its display.
void DesktopServer::adviseOnPort() {
    if (controller().state() == NoPort) {
        window_.showAdvice(systemPath(
            QCoreApplication::translate("DesktopServer", "Plug in the adapter, then click Setup.")));
    }
}

void DesktopServer::showFolder() {
    window_.showFolder(program_.core().transfer.DownloadPath);
}

void DesktopServer::openFolder() {
    if (const QString failure = openOnDesktop(program_.core().transfer.DownloadPath); !failure.isEmpty()) {
        window_.showAdvice(systemPath(failure));
    }
}

void DesktopServer::copyDropped(const std::vector<std::string>& paths) {
    const std::vector<DroppedFile> copied = droppedFiles_.copy(
        paths, [this](const DroppedFiles::Question& question) { return askAboutTaken(window_, question); });
    if (const QString sentence = copiedSentence(copied); !sentence.isEmpty()) {
        window_.showAdvice(systemPath(sentence));
    } else {
        tellOfDropped(window_, copied);
    }
}

void DesktopServer::chooseFolder() {
    chooseDownloadFolder(
        [this](const FolderQuestion& question) { return dialogs_.browseForFolder(window_, question); },
        program_.core().strings, program_.core().transfer, program_.settingsStore(), window_, box_);
    showFolder();
}

void DesktopServer::closeOtherWindows() {
    dialogs_.closeDebugWindow();
    transfers_.close();
}

void DesktopServer::placeWindow() {
    QtWindowGeometry geometry(window_);
    registry_.LoadWindowSize(geometry);
    if (!desktopPlacesByProgram()) {
        return;
    }
    registry_.LoadWindowPos(geometry);
    // What is in the middle without its frame is too low with it.
    whenFramed(window_, [this] {
        QtWindowGeometry framed(window_);
        registry_.LoadWindowPos(framed);
    });
}

void DesktopServer::saveWindowPlace() {
    QtWindowGeometry geometry(window_);
    if (desktopPlacesByProgram()) {
        registry_.SaveWindowPos(geometry);
    }
    registry_.SaveWindowSize(geometry);
}

bool DesktopServer::start(const std::string& commandLine) {
    const bool started = program_.start(commandLine).outcome != StartupOutcome::Failed;
    adviseOnPort();
    return started;
}

int DesktopServer::run() {
    if (!quitting_) {
        QCoreApplication::exec();
    }
    queryUnload(CloseReason::Terminated);
    return 0;
}

void DesktopServer::present() {
    window_.show();
    window_.restore();
    window_.bringToFront();
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
