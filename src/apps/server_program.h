// What the programs that serve have in common: the server on this machine, and its start.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "apps/controller_form.h"
#include "apps/platform_parts.h"
#include "apps/server_core.h"
#include "base/message_box.h"
#include "capture/capture_tap.h"
#include "capture/recent_trace.h"
#include "link/debug.h"
#include "server/line_watch.h"
#include "server/main_view.h"
#include "server/slow_port_note.h"
#include "startup/comms_link.h"
#include "startup/ini_file.h"
#include "startup/ini_settings_store.h"
#include "startup/run_overrides.h"

namespace velmora {

/// How a program shows its server; all of it must outlive the server.
struct ServerFace {
    MainView& view;
    MessageBox& box;
    TraceSink& trace;
    ControllerForm::WindowCalls window;  ///< nothing for a program without one
    /// Tells, in one line in the system's encoding, what start-up has made; may be missing.
    std::function<void(const std::string& line)> tell;
    /// What to do about a port that the server cannot have.
    std::function<WaitFor()> waitFor;
    /// What helps when nothing comes from the Organiser, one sentence.
    std::string findOut;
    /// An adapter has come or gone; may be missing.
    std::function<void()> adaptersChanged = {};
};

/// The server with everything that starts it, built once and connected. Needs the toolkit's event loop.
class ServerProgram {
  public:
    /// `platform` must outlive it and polls the controller below.
    ServerProgram(PlatformParts& platform, RunOverrides overrides, const ServerFace& face);
    /// Closes the port while all that watches it is still there.
    ~ServerProgram() { core_.stopLink(); }
    ServerProgram(const ServerProgram&) = delete;
    ServerProgram& operator=(const ServerProgram&) = delete;

    /// Runs the start-up steps; a failed one has been told by the box. `commandLine` as CommsLink::Main.
    /// Throws UsageError, before anything is made, when the command line names a folder that is not there.
    StartupReport start(const std::string& commandLine);

    /// Looks for a free port as start-up does when none is configured, and starts the server on it; whether
    /// it runs then.
    bool searchPort();

    /// What messages call the server's port, as a Windows-1252 text.
    std::string portName() const { return portName(platform_.port.CommPort()); }
    /// The device of the server's port; its name when it has none.
    std::string portDevice() const;
    /// Why the server's port cannot be opened or failed, and what helps, as one sentence.
    /// Empty when the reason has been told with the failure.
    std::string describePortFailure() const;
    /// What is said of a lost port that the server waits for.
    const char* describeWait() const;
    /// What is to be said, once, where the system tells nothing of adapters; empty where it does.
    std::string describeAdapterNews() const;

    ServerCore& core() { return core_; }
    ServerController& controller() { return core_.controller(); }
    /// Records what passes over the port into a target, which must outlive this object.
    void record(CaptureTarget& target) { tap_.record(platform_.clock, target); }
    /// Keeps so many of the trace's newest entries from now on.
    void keepTrace(std::size_t entries);
    /// What is kept of the trace, as RecentTrace has it.
    std::vector<std::string> recentTrace() const { return recent_.lines(); }
    /// Where settings are written that the command line does not override.
    IniSettingsStore& settingsStore() { return settingsStore_; }

  private:
    void tellOfPort(const std::string& line);
    std::string portName(int number) const;
    CapturedPort capturedPort() const;

    PlatformParts& platform_;
    RunOverrides overrides_;
    Debug debug_;
    RecentTrace recent_;
    CaptureTap tap_;
    ServerCore core_;
    SlowPortNote slowPort_;
    LineWatch lineWatch_;
    ControllerForm form_;
    clsIniFile ini_;
    IniSettingsStore settingsStore_;
    CommsLink start_;
};

}  // namespace velmora
