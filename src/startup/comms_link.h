// The program's start: named steps from the configuration file to the shown window.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/files.h"
#include "base/message_box.h"
#include "base/path_rules.h"
#include "link/crc.h"
#include "services/strings.h"
#include "services/transfer_settings.h"
#include "startup/ini_file.h"
#include "startup/run_overrides.h"
#include "startup/settings.h"
#include "startup/startup_form.h"

namespace velmora {

/// The warning of a search for a free port that found none.
inline constexpr const char* kNoPortSelected = "No port selected!";

/// The user's folders, in the system's encoding.
struct UserFolders {
    std::string applicationData;
    std::string documents;
};

/// What start-up works with; all of it must outlive the CommsLink.
struct StartupParts {
    Files* files;  ///< null when the system's file layer could not be set up
    const PathRules& rules;
    clsIniFile& ini;
    MessageBox& box;
    StartupForm& form;
    Crc& crc;
    Strings& strings;
    TransferSettings& transfer;
    UserFolders folders;
    /// Tells, in one line in the system's encoding, what was made; may be missing.
    std::function<void(const std::string& line)> tell = {};
};

enum class StartupOutcome {
    Running,    ///< the window is shown
    Abandoned,  ///< the user gave up, or the program was told to end; all windows are unloaded
    Failed,     ///< a box has told the user; all windows are unloaded
};

/// How a start ended, for the program's exit status and a log line.
struct StartupReport {
    StartupOutcome outcome = StartupOutcome::Running;
    std::string step;         ///< name of the step that failed
    std::int32_t number = 0;  ///< its error number
    std::string detail;       ///< what exactly failed
    bool portFailed = false;  ///< it was a serial port, not the configuration
};

/// Starts the program.
class CommsLink {
  public:
    CommsLink(StartupParts parts, const RunOverrides& overrides);

    /// Runs all steps and shows the window. `commandLine` is the whole command line behind the program's
    /// name; "-debug", in any case, turns debug mode on. An error in a step is shown in a box with the name
    /// of the step, the windows are unloaded and the report says Failed; errors of showing come through.
    StartupReport Main(const std::string& commandLine);

    /// Path of the configuration file, from load_INIfile on.
    const std::string& iniPath() const { return iniPath_; }
    /// What was read, from get_Settings (ports and rate: init_Ports) on.
    const Settings& settings() const { return settings_; }

    // The steps with rules of their own; Main runs them in order.

    /// Fixes the path of the configuration file, writes the default file when it is missing or too small to
    /// be one, and gives it to the INI object. A small file with an entry is kept with ".old" behind its
    /// name.
    void load_INIfile();
    /// Reads the settings and chooses the download folder. False when the user abandons the start.
    void get_Settings();
    /// Sets up the port, searching ports 1 to 64 when none is configured. The server's first state: Offline,
    /// WaitLink after a search that found a free port, NoPort after one that did not. A search ends early
    /// when the program is told to end.
    std::int32_t init_Ports();

  private:
    void runSteps();
    void writeDefaultFile();
    void keepOldFile();
    void chooseDownloadFolder();
    std::string shownText(const std::string& systemText) const;
    bool searchPort();
    StartupReport fail(std::int32_t number, const std::string& detail, bool portFailed = false);
    StartupReport failWithoutFiles();

    StartupParts parts_;
    const RunOverrides& overrides_;
    Settings settings_;
    std::string iniPath_;
    const char* step_ = "";
    bool abandoned_ = false;
};

}  // namespace velmora
