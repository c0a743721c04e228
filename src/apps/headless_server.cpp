#include "apps/headless_server.h"

#include <QCoreApplication>
#include <cerrno>
#include <cstring>
#include <system_error>

#include "apps/non_blocking_output.h"
#include "base/system_text.h"

namespace velmora {
namespace {

RunOverrides overridesOf(const ServerArguments& arguments) {
    RunOverrides overrides;
    overrides.configPath = arguments.config;
    overrides.port = arguments.port;
    overrides.baud = arguments.baud;
    overrides.folder = arguments.folder;
    overrides.fileType = arguments.fileType;
    overrides.autoStart = true;  // this program exists to serve
    return overrides;
}

}  // namespace

HeadlessServer::HeadlessServer(const ServerArguments& arguments)
    : output_(nonBlockingOutput(stdout), kStreamLineEnd),
      errors_(nonBlockingOutput(stderr), kStreamLineEnd),
      arguments_(arguments),
      platform_([this] { program_.controller().ComTimer_Tick(); }),
      traceSink_(platform_.clock, arguments.traceCategories, traceOutput()),
      view_([this](const std::string& line) { output_.print(line); },
            [this](const std::string& line) { printError(line); },
            {[this] {
                 if (program_.controller().queryUnload(CloseReason::Program)) {
                     quit(0);
                 }
             },
             [this](std::int32_t state) { stateChanged(state); }}),
      box_([this](const std::string& line) { printError(line); }),
      program_(platform_, overridesOf(arguments), {view_, box_, traceSink_, {}}) {
    program_.controller().setClosingActions({&program_.settingsStore(), {}, {}});
    program_.controller().onPortFailure([this] { portFailed(); });
}

/// Where trace lines go; throws std::system_error when the trace file cannot be made.
std::function<void(const std::string&)> HeadlessServer::traceOutput() {
    if (!arguments_.trace) {
        return {};
    }
    if (!arguments_.traceFile) {
        return [this](const std::string& line) { errors_.print(toSystemText(line)); };
    }
    traceFile_.reset(std::fopen(arguments_.traceFile->c_str(), "w"));
    if (traceFile_ == nullptr) {
        throw std::system_error(errno, std::generic_category(), *arguments_.traceFile);
    }
    trace_.emplace(nonBlockingOutput(traceFile_.get()), kStreamLineEnd);
    return [this](const std::string& line) { trace_->print(toSystemText(line)); };
}

/// Prints a warning. A server whose port failed ends, and says so in one line.
void HeadlessServer::printError(const std::string& line) {
    if (failed_) {
        return;
    }
    std::string text = line;
    const std::string start = "Port COM" + std::to_string(platform_.port.CommPort()) + " ";
    if (line.starts_with(start)) {
        text += " " + program_.describePortFailure();
    }
    errorPrinted_ = true;
    errors_.print("velmorad: " + text);
}

void HeadlessServer::portFailed() {
    if (!errorPrinted_) {
        printError("COM" + std::to_string(platform_.port.CommPort()) +
                   " failed: " + platform_.port.lastErrorDescription());
    }
    failed_ = true;
    quit(1);
}

void HeadlessServer::stateChanged(std::int32_t state) {
    if (state == NoPort) {
        printError("no free serial port was found; name one with --port");
        quit(1);
    } else if (state == OnExit) {
        quit(0);
    }
}

/// Ends the event loop, or keeps it from beginning; the first reason counts.
void HeadlessServer::quit(int status) {
    if (!quitting_) {
        quitting_ = true;
        exitStatus_ = status;
        QCoreApplication::exit(status);
    }
}

void HeadlessServer::stop() {
    program_.controller().queryUnload(CloseReason::Terminated);
    quit(0);
}

int HeadlessServer::run() {
    const StartupReport report = program_.start("");
    if (report.outcome == StartupOutcome::Failed) {
        if (!errorPrinted_) {
            printError("start-up failed in " + report.step + ": " + report.detail);
        }
        return 1;
    }
    if (!quitting_) {
        QCoreApplication::exec();
    }
    program_.controller().queryUnload(CloseReason::Terminated);
    return exitStatus_;
}

}  // namespace velmora
