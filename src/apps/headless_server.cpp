#include "apps/headless_server.h"

#include <QCoreApplication>
#include <cerrno>
#include <cstring>
#include <system_error>

#include "apps/non_blocking_output.h"
#include "apps/server_overrides.h"
#include "arguments/usage_error.h"
#include "base/run_time_error.h"
#include "base/system_text.h"
#include "serial/device_facts.h"

namespace velmora {
namespace {

constexpr int kStatusPort = 1;

constexpr const char* kWaits = " Waiting for it.";
constexpr const char* kWaitsForAny = " Waiting for another one.";

}  // namespace

HeadlessServer::HeadlessServer(const ServerArguments& arguments)
    : output_(nonBlockingOutput(stdout), kStreamLineEnd),
      errors_(nonBlockingOutput(stderr), kStreamLineEnd),
      arguments_(arguments),
      platform_([this] { program_.controller().ComTimer_Tick(); },
                [this] { return program_.core().soonestFrame(); }),
      log_([this](const std::string& line) { output_.print(line); },
           [this](const std::string& line) { errors_.print(line); }, platform_.clock, arguments.logFormat,
           arguments.quiet),
      traceSink_(platform_.clock, arguments.traceCategories, traceOutput()),
      view_([this](const std::string& line) { log_.message(line); },
            [this](const std::string& line) { printWarning(line); },
            {[this] {
                 if (program_.controller().queryUnload(CloseReason::Program)) {
                     quit(0);
                 }
             },
             [this](std::int32_t state) { stateChanged(state); },
             [this] { return !program_.core().waitsForPort(); }}),
      box_([this](const std::string& line) { printAnswer(line); }),
      program_(platform_, overridesOf(arguments),
               {view_,
                box_,
                traceSink_,
                {},
                [this](const std::string& line) { log_.message(line); },
                [this] { return arguments_.wait ? WaitFor::AnyPort : WaitFor::Nothing; },
                "Stop the server and run velmora-doctor to find out why."}),
      searched_(platform_.portNames, gatherDeviceFacts),
      search_(
          searchTimer_, [this] { return searched_.look(); },
          [this] {
              const bool found = program_.searchPort();
              tellFoundPort();
              return found;
          }) {
    program_.controller().setClosingActions({&program_.settingsStore(), {}, {}});
    program_.controller().onPortFailure([this] { portFailed(); });
    program_.core().observe(log_);
    if (!arguments_.capture.path.empty()) {
        openCapture(arguments_.capture);
    }
    if (arguments_.onTransfer) {
        programQueue_.emplace(
            *arguments_.onTransfer, [this](const std::string& line) { log_.message(line); },
            [this](const std::string& line) { log_.error(line); });
        program_.core().observe(transferProgram_.emplace(*programQueue_));
    }
}

/// Where trace lines go; throws UsageError when the trace file cannot be made.
std::function<void(const std::string&)> HeadlessServer::traceOutput() {
    if (!arguments_.trace) {
        return {};
    }
    if (!arguments_.traceFile) {
        return [this](const std::string& line) { errors_.print(toSystemText(line)); };
    }
    traceFile_.reset(std::fopen(arguments_.traceFile->c_str(), "w"));
    if (traceFile_ == nullptr) {
        throw UsageError("--trace-file " + *arguments_.traceFile + ": " +
                         std::generic_category().message(errno));
    }
    trace_.emplace(nonBlockingOutput(traceFile_.get()), kStreamLineEnd);
    return [this](const std::string& line) { trace_->print(toSystemText(line)); };
}

/// Records from now on; throws UsageError when the file cannot be made.
void HeadlessServer::openCapture(const CaptureRequest& request) {
    try {
        capture_.emplace(platform_.files, request, [this](const std::string& line) { log_.error(line); });
    } catch (const RunTimeError& error) {
        const bool foreign = error.errorNumber() == ErrorNumber::FileAlreadyExists;
        throw UsageError("--capture " + request.path + ": " +
                         (foreign ? "exists and is no capture; it is left as it is" : error.what()));
    }
    program_.record(*capture_);
}

/// A server whose port failed ends, and says so in one line.
void HeadlessServer::printError(const std::string& line) {
    if (!failed_) {
        log_.error(line);
    }
}

/// Prints a warning of the server, with what helps.
void HeadlessServer::printWarning(const std::string& line) {
    std::string advice;
    if (line.starts_with("Port " + toSystemText(program_.portName()) + " ")) {
        advice = " " + program_.describePortFailure();
        if (arguments_.wait) {
            advice += kWaits;
        }
    } else if (arguments_.wait && line.starts_with(toSystemText(program_.portName()))) {
        advice = std::string(" ") + program_.describeWait();
    } else if (line == kNoPortSelected) {
        if (search_.waiting()) {
            return;  // told at the first search
        }
        advice = " None of COM1 to COM64 is free; name one with --port.";
        if (arguments_.wait) {
            advice += kWaitsForAny;
        }
    }
    warned_ = true;
    printError(line + advice);
}

/// A question about a port that is lost has its answer already.
void HeadlessServer::printAnswer(const std::string& line) {
    if (!program_.core().waitsForPort()) {
        printError(line);
    }
}

void HeadlessServer::portFailed() {
    if (!warned_) {
        printWarning(toSystemText(program_.portName()) + " failed: " + platform_.port.lastErrorDescription());
    }
    if (arguments_.wait) {
        return;
    }
    failed_ = true;
    quit(kStatusPort);
}

void HeadlessServer::stateChanged(std::int32_t state) {
    if (state == WaitLink) {
        warned_ = false;
        search_.end();
    } else if (state == NoPort && arguments_.wait) {
        // The first look finds all ports new: one may have come while the start searched.
        search_.begin(true);
    } else if (state == NoPort) {
        quit(kStatusPort);
    } else if (state == OnExit) {
        quit(0);
    }
}

void HeadlessServer::tellFoundPort() {
    if (program_.core().options.AutoSelectPort && program_.controller().running()) {
        log_.message("Found " + toSystemText(program_.portName()) + ", " + program_.portDevice());
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
        return report.portFailed ? kStatusPort : kStatusConfiguration;
    }
    tellFoundPort();
    if (const std::string news = program_.describeAdapterNews(); arguments_.wait && !news.empty()) {
        log_.message(news);
    }
    if (!quitting_) {
        QCoreApplication::exec();
    }
    program_.controller().queryUnload(CloseReason::Terminated);
    return exitStatus_;
}

}  // namespace velmora
