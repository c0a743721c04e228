#include "apps/server_program.h"

#include <utility>

#include "apps/named_folders.h"
#include "base/system_text.h"
#include "platform/known_folders.h"
#include "serial/mode_string.h"
#include "serial/open_diagnosis.h"
#include "serial/port_list.h"

namespace velmora {

ServerProgram::ServerProgram(PlatformParts& platform, RunOverrides overrides, const ServerFace& face)
    : platform_(platform),
      overrides_(std::move(overrides)),
      debug_(face.trace),
      recent_(debug_),
      tap_(recent_),
      core_({face.view, face.box, platform.files, platform.rules, platform.port, tap_, platform.ComTimer,
             platform.PLPtimer, platform.DisplayTimer, platform.clock, platform.zone, platform.yield,
             platform.readYield, platform.folders.programData(),
             [this](int number) { return portName(number); },
             [&platform] { return platform.watcher.watches(); },
             [this] {
                 slowPort_.opened(portDevice(), platform_.device->heldBack(), platform_.port.Settings());
             },
             ServerCoreParts::PortKeeping{
                 platform.KeeperTimer, platform.portNames,
                 [&platform] { return listPorts(platform.portNames); }, gatherDeviceFacts,
                 [this](const std::string& line) { tellOfPort(line); }, face.waitFor},
             ServerCoreParts::SleepWatching{platform_.sleep, platform_.SleepTimer}}),
      slowPort_(core_.controller(), recent_),
      lineWatch_({core_.crc, platform.clock, [this] { return core_.link().linkState(); },
                  [this] { return platform_.port.Settings(); }, face.findOut,
                  [this](const std::string& text2, const std::string& text3) {
                      controller().ShowPassing(text2, text3);
                  }}),
      form_(core_.controller(), face.view, core_.options, platform.port, platform.portNames, face.window),
      ini_(platform.profiles, platform.rules, face.box, windowsFolder()),
      settingsStore_(ini_, overrides_),
      start_({&platform.files,
              platform.rules,
              ini_,
              face.box,
              form_,
              core_.crc,
              core_.strings,
              core_.transfer,
              {platform.folders.applicationData(), platform.folders.documents()},
              face.tell},
             overrides_) {
    platform_.adapters.onChange([this, shown = face.adaptersChanged] {
        core_.adaptersChanged();
        if (shown) {
            shown();
        }
    });
    const auto linkState = [this] { return core_.link().linkState(); };
    debug_.showStateOf(linkState);
    tap_.listenTo(linkState, [this] { return capturedPort(); });
    platform_.port.observe(tap_);
    platform_.port.observe(lineWatch_);
}

StartupReport ServerProgram::start(const std::string& commandLine) {
    requireNamedFolders(platform_.files, platform_.rules, overrides_);
    StartupReport report = start_.Main(commandLine);
    core_.applySettings(start_.settings());
    if (const std::string news = describeAdapterNews(); !news.empty()) {
        recent_.trace("COM", news, {});
    }
    return report;
}

bool ServerProgram::searchPort() {
    controller().setState(start_.init_Ports());
    return controller().running();
}

void ServerProgram::tellOfPort(const std::string& line) {
    const std::string shown = shownText(line);
    recent_.trace("COM", shown, {});
    controller().ShowText("", shown, "");
}

void ServerProgram::keepTrace(std::size_t entries) {
    recent_.keep(
        platform_.clock, [this] { return core_.link().linkState(); }, entries);
}

std::string ServerProgram::describeAdapterNews() const {
    return platform_.adapters.live()
               ? ""
               : "The system tells nothing of adapters: a lost port is looked for once a second.";
}

std::string ServerProgram::portName(int number) const {
    return fromSystemText(platform_.portNames.shown(number)).value_or("COM" + std::to_string(number));
}

std::string ServerProgram::portDevice() const {
    const int number = platform_.port.CommPort();
    return platform_.portNames.device(number).value_or("COM" + std::to_string(number));
}

CapturedPort ServerProgram::capturedPort() const {
    const std::string& settings = platform_.port.Settings();
    const auto line = parseModeString(settings);
    return {utf8OfSystemText(portDevice()), settings, line ? line->baud : 0};
}

std::string ServerProgram::describePortFailure() const {
    if (std::string complaint = core_.portComplaint(); !complaint.empty()) {
        return complaint;
    }
    if (core_.controller().asleep()) {
        return {};
    }
    return describeOpenFailure(portDevice(), platform_.port.lastErrorNumber());
}

const char* ServerProgram::describeWait() const {
    return core_.controller().asleep() ? "Velmora goes on when it is awake again."
                                       : "Velmora goes on when it is plugged in again.";
}

}  // namespace velmora
