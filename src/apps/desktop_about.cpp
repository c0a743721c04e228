#include "apps/desktop_about.h"

#include <QDir>
#include <QGuiApplication>
#include <QSysInfo>
#include <chrono>
#include <utility>

#include "arguments/version.h"
#include "base/byte_text.h"
#include "base/moment_text.h"
#include "base/run_time_error.h"
#include "base/system_text.h"
#include "capture/frame_mask.h"
#include "capture/pcapng_writer.h"
#include "platform/known_folders.h"
#include "serial/port_list.h"
#include "serial/port_report.h"
#include "server/caption.h"
#include "server/status_line.h"
#include "startup/effective_settings.h"
#include "startup/start_paths.h"
#include "ui/no_user_box.h"
#include "ui/qt/frm_about.h"
#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

constexpr std::size_t kTraceLines = 200;
constexpr std::chrono::minutes kCaptured{1};

std::string programText() {
    return std::string(kProgramName) + " " + fullVersion();
}

std::string systemText() {
    return (QSysInfo::prettyProductName() + QStringLiteral(", ") + QSysInfo::kernelType() + QLatin1Char(' ') +
            QSysInfo::kernelVersion() + QStringLiteral(", ") + QSysInfo::currentCpuArchitecture())
        .toStdString();
}

std::string toolkitText() {
    return std::string(qVersion()) + ", " + QGuiApplication::platformName().toStdString();
}

}  // namespace

DesktopAbout::DesktopAbout(PlatformParts& platform, ServerProgram& program, RunOverrides overrides,
                           const CaptureRing& captured, const DesktopHelp& help)
    : platform_(platform),
      program_(program),
      overrides_(std::move(overrides)),
      captured_(captured),
      help_(help) {
    program_.keepTrace(kTraceLines);
}

std::vector<NamedText> DesktopAbout::places() const {
    const std::string data = platform_.folders.programData();
    return {{"Settings", utf8OfSystemText(configurationPath(
                             platform_.rules, platform_.folders.applicationData(), overrides_))},
            {"Download folder", utf8OfSystemText(program_.core().transfer.DownloadPath)},
            {"Earlier copies", utf8OfSystemText(program_.core().copies.folder)},
            {"List of transfers", utf8OfSystemText(platform_.rules.join(data, "Transfers.jsonl"))}};
}

std::string DesktopAbout::settings() const {
    NoUserBox box([](const std::string&) {});
    try {
        clsIniFile ini(platform_.profiles, platform_.rules, box, windowsFolder());
        ini.setIniFile(configurationPath(platform_.rules, platform_.folders.applicationData(), overrides_));
        return utf8OfSystemText(printedSettings(effectiveSettings(
            ini, platform_.files, platform_.rules, platform_.folders.documents(), overrides_)));
    } catch (const RunTimeError& error) {
        return std::string(error.what()) + "\n";
    }
}

std::string DesktopAbout::report(const QString& capture) const {
    const auto state = static_cast<std::size_t>(program_.controller().state());
    const DisplayText& display = program_.core().strings.DisplayStrings[state];
    Report report;
    report.program = programText();
    report.facts = {{"System", systemText()},
                    {"Toolkit", "Qt " + toolkitText()},
                    {"Time", momentText(platform_.clock.localTime(), kStampForm)},
                    {"Server", "state " + std::to_string(state) + " " +
                                   toUtf8(joinDisplayLines(display.line1, display.line2))},
                    {"Port", utf8OfSystemText(program_.portDevice()) + " " + platform_.port.Settings()}};
    for (const NamedText& place : places()) {
        report.facts.push_back(place);
    }
    report.facts.push_back({"Capture", QDir::toNativeSeparators(capture).toStdString()});
    report.ports = utf8OfSystemText(portTable(listPorts(platform_.portNames)));
    report.settings = settings();
    report.trace = program_.recentTrace();
    return reportText(report, systemPath(QDir::homePath()));
}

void DesktopAbout::show(QWidget& window) {
    frmAbout::Actions actions;
    actions.report = [this](const QString& capture) { return report(capture); };
    actions.capture = [this] { return pcapngFile(lastOf(maskedCapture(captured_.capture()), kCaptured)); };
    frmAbout dialog(QString::fromStdString(programText()),
                    QString::fromStdString(aboutText(qVersion(), places())), std::move(actions), &window);
    dialog.offerHelp(help_.about(dialog, HelpTopic::About));
    dialog.exec();
}

}  // namespace velmora
