#include "startup/comms_link.h"

#include <exception>
#include <new>
#include <optional>
#include <sstream>
#include <utility>

#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "link/server_state.h"
#include "platform/profile/profile_encoding.h"
#include "platform/profile/replace_contents.h"
#include "serial/serial_port.h"
#include "server/searched_ports.h"
#include "startup/default_ini.h"
#include "startup/messages.h"
#include "startup/start_paths.h"

namespace velmora {
namespace {

// Set by packagers.
constexpr const char* kContact = VELMORA_CONTACT;
constexpr int kRevision = VELMORA_REVISION;

constexpr const char* kVersion = "beta3";
constexpr const char* kErrorTitle = "Oops, Velmora Error";
constexpr std::int32_t kPortFree = 1;

/// Whether a small file has a line "key=value".
bool holdsEntry(const std::string& contents) {
    std::istringstream lines(contents);
    for (std::string line; std::getline(lines, line);) {
        if (!trimBlanks(line).starts_with(';') && line.find('=') != std::string::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace

CommsLink::CommsLink(StartupParts parts, const RunOverrides& overrides)
    : parts_(std::move(parts)), overrides_(overrides) {}

StartupReport CommsLink::Main(const std::string& commandLine) {
    if (parts_.files == nullptr) {
        return failWithoutFiles();
    }
    try {
        runSteps();
    } catch (const RunTimeError& error) {
        return fail(error.number(), error.what(), error.errorNumber() == ErrorNumber::DeviceUnavailable);
    } catch (const CommError& error) {
        return fail(error.number(), error.what(), true);
    } catch (const std::bad_alloc& error) {
        return fail(static_cast<int>(ErrorNumber::OutOfMemory), error.what());
    } catch (const std::exception& error) {
        return fail(static_cast<int>(ErrorNumber::DeviceIoError), error.what());
    }
    if (abandoned_) {
        parts_.form.unload();
        return {StartupOutcome::Abandoned, step_, 0, {}, false};
    }
    parts_.form.setDebugMode(lowerCase(commandLine) == "-debug");
    parts_.form.show();
    parts_.form.applyAutoStart();
    return {};
}

void CommsLink::runSteps() {
    step_ = "load_Form";
    parts_.form.load();
    step_ = "load_INIfile";
    load_INIfile();
    step_ = "get_Messages";
    get_Messages(parts_.ini, parts_.strings);
    step_ = "get_Settings";
    get_Settings();
    step_ = "load_CRCtable";
    parts_.crc.load_CRCtable();
    step_ = "init_Ports";
    const std::int32_t state = init_Ports();
    abandoned_ = parts_.form.ended();
    if (abandoned_) {
        return;
    }
    parts_.form.setState(state);
    step_ = "get_WindowPos";
    parts_.form.loadWindowPos();
}

void CommsLink::load_INIfile() {
    Files& files = *parts_.files;
    iniPath_ = configurationPath(parts_.rules, parts_.folders.applicationData, overrides_);
    if (!files.fileExists(iniPath_)) {
        // On a fresh account even the application-data folder may be missing.
        files.createFolder(parts_.rules.parentFolder(iniPath_));
        writeDefaultFile();
    } else if (!isConfiguration(files, iniPath_)) {
        keepOldFile();
        writeDefaultFile();
    }
    files.removeLeftovers(parts_.rules.parentFolder(iniPath_));
    parts_.ini.setIniFile(iniPath_);
}

void CommsLink::writeDefaultFile() {
    replaceContents(*parts_.files, parts_.rules, iniPath_, defaultIni());
    if (parts_.tell) {
        parts_.tell("Wrote the default settings to " + iniPath_);
    }
}

void CommsLink::keepOldFile() {
    std::string contents(kSmallestIni, '\0');
    contents.resize(parts_.files->open(iniPath_, OpenMode::Read)->read(contents.data(), contents.size()));
    if (!holdsEntry(contents)) {
        return;
    }
    const std::string kept = iniPath_ + ".old";
    replaceContents(*parts_.files, parts_.rules, kept, contents);
    parts_.box.inform(BoxIcon::Exclamation, "Velmora Warning",
                      shownText(iniPath_) +
                          " has less than 100 bytes and is replaced by the default file; it is kept as " +
                          shownText(kept));
}

void CommsLink::get_Settings() {
    parts_.form.setVersionTexts(kVersion, "build " + std::to_string(kRevision));
    settings_ = Settings();
    readSettings(parts_.ini, SettingStep::get_Settings, overrides_, settings_);
    settings_.ports = readPortDevices(parts_.ini);
    parts_.form.setPortDevices(settings_.ports);

    settings_.options.AutoStart = overrides_.autoStart.value_or(settings_.options.AutoStart);
    // The search flag is the port step's to decide.
    settings_.options.AutoSelectPort = parts_.form.options().AutoSelectPort;
    parts_.form.options() = settings_.options;

    const std::int32_t fileType = overrides_.fileType.value_or(settings_.DataFileType);
    parts_.transfer.DataFileType = fileType < 0 || fileType > 3 ? 0 : fileType;
    parts_.transfer.StayInFolder = overrides_.stayInFolder.value_or(settings_.StayInFolder);
    // An Abort button of the box about a missing folder would end the start here; it has none.
    chooseDownloadFolder();
}

void CommsLink::chooseDownloadFolder() {
    Files& files = *parts_.files;
    const DownloadFolder folder =
        downloadFolder(files, parts_.rules, parts_.folders.documents, settings_.DownloadPath, overrides_);
    if (!folder.missing.empty()) {
        parts_.box.inform(BoxIcon::Exclamation, "Velmora Warning",
                          std::string(Strings::kDLPathNotFound1) + "\n   " + shownText(folder.missing) +
                              "\n" + Strings::kDLPathNotFound2 + "\n   " + shownText(folder.path));
    }
    if (folder.isUsual) {
        files.createFolder(folder.path);
    }
    files.removeLeftovers(folder.path);
    parts_.transfer.DownloadPath = folder.path;
}

std::int32_t CommsLink::init_Ports() {
    StartupForm& form = parts_.form;
    readSettings(parts_.ini, SettingStep::init_Ports, overrides_, settings_);
    int port = settings_.Port;
    if (overrides_.port) {
        port = form.portNumber(*overrides_.port);
        if (port < 1 || port > 32'767) {
            throw RunTimeError(ErrorNumber::DeviceUnavailable, *overrides_.port);
        }
    }
    const bool search = port < 1;
    form.options().AutoSelectPort = search;
    form.port().setCommPort(static_cast<std::int16_t>(search ? 1 : port));
    form.port().setSettings(std::to_string(overrides_.baud.value_or(settings_.Baud)) + ",N,8,1");
    if (!search) {
        return Offline;
    }
    if (searchPort()) {
        form.ShowClear();
        return WaitLink;
    }
    form.options().AutoSelectPort = false;
    if (form.ended()) {
        return Offline;
    }
    form.ShowWarning(kNoPortSelected, "");
    return NoPort;
}

bool CommsLink::searchPort() {
    StartupForm& form = parts_.form;
    for (std::int16_t port = 1; port <= kLastSearchedPort && !form.ended(); ++port) {
        std::int32_t status = 0;
        form.checkPort(port, 0, status);
        if (status == kPortFree) {
            form.port().setCommPort(port);
            return true;
        }
    }
    form.port().setCommPort(1);
    return false;
}

/// A text with a path, or of the configuration file, for a box.
std::string CommsLink::shownText(const std::string& systemText) const {
    const bool utf8 = !parts_.rules.hasDrives() && isUtf8(systemText);
    return utf8 ? decodeText(systemText, ProfileEncoding::Utf8) : systemText;
}

StartupReport CommsLink::fail(std::int32_t number, const std::string& detail, bool portFailed) {
    parts_.box.inform(BoxIcon::Critical, kErrorTitle,
                      "Error " + std::to_string(number) + " in " + step_ + ":\nPlease report this error to " +
                          kContact + "!" + (detail.empty() ? "" : "\n" + shownText(detail)));
    parts_.form.unload();
    return {StartupOutcome::Failed, step_, number, detail, portFailed};
}

StartupReport CommsLink::failWithoutFiles() {
    parts_.box.inform(BoxIcon::Critical, kErrorTitle,
                      "A component is missing!\n\n"
                      "Please download 'Microsoft Scripting Runtime' from the Velmora homepage\n"
                      "or directly from Microsoft, install it and re-run Velmora.");
    return {StartupOutcome::Failed, step_, 0, "the file layer could not be set up", false};
}

}  // namespace velmora
