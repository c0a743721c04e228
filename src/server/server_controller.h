// The server controller: the server's state, what drives it and what stops it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "base/clock.h"
#include "base/event_yield.h"
#include "base/message_box.h"
#include "base/timer.h"
#include "link/server_state.h"
#include "link/server_window.h"
#include "serial/serial_port.h"
#include "server/display_mirror.h"
#include "server/link_control.h"
#include "server/main_view.h"
#include "server/message_lines.h"
#include "server/port_keeper.h"
#include "server/server_options.h"
#include "server/settings_store.h"
#include "server/sleep_watch.h"
#include "services/strings.h"
#include "services/transfer_settings.h"

namespace velmora {

/// What a controller works with; all of it must outlive the controller.
struct ServerParts {
    MainView& view;
    MessageBox& box;
    const Strings& strings;
    ServerOptions& options;
    TransferSettings& transfer;
    SerialPort& port;
    Timer& ComTimer;
    Timer& PLPtimer;
    Timer& DisplayTimer;
    const Clock& clock;
    EventYield& yield;
    /// The last component of a path as Windows-1252 bytes.
    std::function<std::string(const std::string& path)> displayName;
    /// What messages call the port of a number; without it "COM<n>".
    std::function<std::string(int number)> portName = {};
    /// Whether bytes that come, and the end of the port, run the poll by themselves; without it they do not.
    std::function<bool()> portWatched = {};
    /// Runs each time the server has started, with its port open.
    std::function<void()> started = {};
};

/// What the end of the program saves and closes; each may be missing.
struct ClosingActions {
    SettingsStore* settings = nullptr;
    std::function<void()> saveWindowPos;
    std::function<void()> closeDebugWindow;
};

/// Why the main window is about to close.
enum class CloseReason {
    User,            ///< the window's own close button or key
    Program,         ///< asked for by the program: pbShutDown, an accepted SHUTDOWN
    SystemShutdown,  ///< the system shuts down or logs the user off
    TaskManager,     ///< a task manager ends the program
    Terminated,      ///< the process was told to end by a signal and has a moment to do so
};

/// Starts and stops the server, polls the port, drives the link and reacts to the Organiser's EXIT and
/// SHUTDOWN requests. Everything runs on one thread, from timer ticks and button events.
///
/// The poll ticks as often as it must: not at all while the server is stopped, every 20 ms while it runs, and
/// only once a second where the system tells of bytes anyway. What the system does not tell of is looked for
/// every 20 ms all the same: a failed link, and whatever may happen behind a question.
///
/// Timers tick while a message box waits, and events may run inside calls of the link, so state changes can
/// be nested. The rules that keep them apart:
/// - While a question is on the screen it is not asked a second time; what would have asked it ends there.
/// - After an answer the world is looked at again. When the server has been stopped meanwhile, a change that
///   wanted to stop it is done; only an accepted SHUTDOWN goes on, to end the program.
/// - Changes that are reported while the link is being stopped are ignored: they come from services that are
///   ending. Changes that are reported while it is being started are carried out once it is.
/// - A link call that outlives its link (the user stopped the server while it was sending) cannot start the
///   server again, nor can the request that it returns stop or end anything. Likewise a link call that has
///   reported a failed port (LinkFailed) cannot cover that up by what it reports afterwards.
/// - A port that fails is not polled again until the next start, however long its question waits. When the
/// user
///   would keep the server running, the failed port stops it all the same; the warning stays.
/// - A question about a server that has gone offline behind it closes by itself.
class ServerController : public ServerWindow {
  public:
    /// Enables ComTimer, connects the ticks of the three timers, shows the statistics.
    explicit ServerController(const ServerParts& parts);
    /// Takes its ticks off the timers.
    ~ServerController() override;
    ServerController(const ServerController&) = delete;
    ServerController& operator=(const ServerController&) = delete;

    /// Gives the link, which must outlive the controller. Required before any change of state.
    void attachLink(LinkControl& link) { link_ = &link; }
    /// Gives who finds the port and waits for it, which must outlive the controller. Without it a lost port
    /// stays lost.
    void attachPortKeeper(PortKeeper& keeper) { keeper_ = &keeper; }
    /// Gives who is told what the server does, to keep the computer awake; it must outlive the controller.
    void attachSleepWatch(SleepWatch& watch) { sleepWatch_ = &watch; }
    void setClosingActions(ClosingActions actions) { closing_ = std::move(actions); }
    /// Called once each time the port cannot be opened or fails while the server runs.
    void onPortFailure(std::function<void()> handler) { onPortFailure_ = std::move(handler); }

    // ServerWindow
    std::int32_t state() const override { return state_; }
    /// Numbers that are no server state are ignored like -1.
    void setState(std::int32_t newState) override;
    void setCurrentFile(const std::string& path) override;
    const std::string& CurrentFile() const override { return currentFile_; }
    void setErrorMsg(const std::string& text) override;
    const std::string& ErrorMsg() const { return errorMsg_; }
    void Display(const std::string& line1, const std::string& line2) override;
    void ShowWarning(const std::string& text2, const std::string& text3) override;
    void ShowLineDown() override;
    void Report(const std::string& line) override { parts_.view.showReport(line); }
    void SetStats(std::int32_t which, std::int16_t amount) override;

    void ShowText(const std::string& text1, const std::string& text2, const std::string& text3);
    void ShowClear();
    /// Shows two message lines until something else happens. A warning that stands there stays.
    void ShowPassing(const std::string& text2, const std::string& text3);
    /// Makes the statistics visible.
    void ShowStats();
    /// Gives the headings and the warning marker the catalogue's captions.
    void showLabelTexts();
    void setDebugMode(bool on);

    /// Tests one serial port (PortStatusNumber). Sets the number of the server's port object, so the caller
    /// sets the wanted one again. A running server keeps its port: the answer is then kStatusInUse. Lets
    /// events run first, so that whoever tests many ports can be stopped; a closed controller tests none.
    std::int32_t checkPort(std::int16_t port, std::int16_t flags);

    /// The window has appeared: with AutoStart, a stopped server (state Offline) starts.
    void windowShown();
    /// The window was resized, minimised or restored.
    void windowResized(bool minimised);

    void pbStartStop_Click();
    /// `openSetup` shows the setup dialog and returns when it is closed. Nothing while the server runs.
    void pbSetup_Click(const std::function<void()>& openSetup);
    void pbHide_Click();
    void pbShutDown_Click();

    /// Starts a stopped server (state Offline) whose port is back, on the port as it stands. False when it
    /// could not, or not now: while the user is busy with a question or the setup dialog.
    bool restart();
    /// The computer is about to sleep: the port goes, as if it were pulled, until the computer is awake
    /// again. Asks nothing: the transfer is lost in any case.
    void computerSleeps();
    void computerWakes();

    /// Polls the port. Does nothing while ComTimer is disabled, so it may be called at any time when bytes
    /// are known to wait.
    void ComTimer_Tick();
    void PLPtimer_Tick();
    void DisplayTimer_Tick() { mirror_.DisplayTimer_Tick(); }

    /// The window is about to close. Asks before a transfer is interrupted, stops the link and saves; false
    /// when it must stay open. Nothing is asked, stopped or saved on SystemShutdown and TaskManager; on
    /// Terminated nothing is asked or saved, but files and port are given back. After true the controller
    /// does nothing more.
    bool queryUnload(CloseReason reason);

    /// Whether queryUnload has said that the program may end.
    bool closed() const { return closed_; }
    /// Whether the server runs.
    bool running() const { return state_ >= WaitLink; }
    /// Whether the port failed since the server was last started.
    bool portFailed() const { return portFailed_; }
    /// Whether the computer is about to sleep, or sleeps.
    bool asleep() const { return asleep_; }

  private:
    /// The questions that must not be on the screen twice.
    enum class Question { UserInterrupt, OnExit, OnShutdown };
    static constexpr std::size_t kQuestions = 3;

    /// Sets a flag or counts a call for as long as a scope lasts.
    class Scope;

    // State changes.
    void changeState(std::int32_t next);
    void deferUntilStarted(std::int32_t next);
    void enterNoPort();
    void continueServing(std::int32_t next);
    bool startServer();
    void showStateText(std::int32_t old, std::int32_t next);
    void storeState(std::int32_t next);
    void waitOrNot();

    // Stop requests and closing.
    bool stopRequestPasses(std::int32_t next);
    bool stopServer(std::int32_t next);
    bool stillWanted(std::int32_t old, std::int32_t next) const;
    void stopLink();
    bool ask(Question question, BoxIcon icon, const std::string& text, bool foreground);
    bool interruptionPasses();
    void withdrawMootQuestions();
    bool closeOrderly();
    void saveSettings(bool portChosen);

    // Port.
    void poll();
    void pacePoll();
    void receive();
    void afterLinkCall();
    void portFails(bool gone = false);
    bool stopWaiting();
    void reportPortError(const CommError& error);
    void tellOfFailedPort();
    void showStateAsCaption();
    std::string whatIsLost() const;
    std::string portName() const;

    void enableButton(MainButton button, bool enabled);
    void focusIfVisible(MainButton button);
    void minimiseIfAutoHide();
    /// Shows two lines; `status` is how they read as one.
    void showOnMirror(const std::string& line1, const std::string& line2, const std::string& status);

    ServerParts parts_;
    LinkControl* link_ = nullptr;
    PortKeeper* keeper_ = nullptr;
    SleepWatch* sleepWatch_ = nullptr;
    ClosingActions closing_;
    std::function<void()> onPortFailure_;
    DisplayMirror mirror_;
    MessageLines messages_;
    bool passingShown_ = false;
    std::int32_t state_ = Welcome;
    std::string currentFile_;
    std::string errorMsg_;
    bool startStopEnabled_ = true;
    bool portFailed_ = false;  // since the last start
    bool pollFailed_ = false;  // the port's input count failed since the last start
    int warnings_ = 0;         // shown so far
    int warningsBeforeRead_ = 0;
    bool asleep_ = false;      // at the latest until the next start
    bool restarting_ = false;  // the port has been looked for
    bool closed_ = false;

    std::array<bool, kQuestions> asking_{};
    int stopping_ = 0;                     // PLP_Stop is on the stack
    int starting_ = 0;                     // PLP_Start is on the stack
    int linkCalls_ = 0;                    // PLP_ReceiveEvent or PLP_Timeout is on the stack
    int inSetup_ = 0;                      // the setup dialog is open
    bool identityChosen_ = false;          // the setup dialog changed the port or its adapter
    bool dialectChosen_ = false;           // the setup dialog changed the worksheets' dialect
    bool startWaits_ = false;              // Start was clicked while linkCalls_
    std::optional<std::int32_t> pending_;  // change that was reported while starting_
};

}  // namespace velmora
