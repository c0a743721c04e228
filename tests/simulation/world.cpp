#include "world.h"

#include <utility>

#include "violation.h"

namespace velmora::simulation {
namespace {

/// A file, the copy of it that is kept, or the image that is made of it.
constexpr int kMostOpenFiles = 3;

/// Virtual time in which any step must be through.
constexpr std::chrono::hours kLongestStep{3};

}  // namespace

World::World(std::uint64_t seed, const LineForm& form, Journal& journal)
    : journal_(journal),
      line_(time_, faults_, journal, Random(seed ^ 1U)),
      disk_(time_, faults_, journal, Random(seed ^ 2U)),
      portSettings_(std::to_string(form.baud) + ",N,8,1") {
    line_.setRate(form.baud);
    line_.setDelay(form.delay);
    for (const std::string& folder : {kDownloadFolder, kProgramData, std::string("/tmp")}) {
        disk_.addFolder(folder);
    }
}

void World::beginStep(std::vector<Fault> faults, const ServerSettings& settings, const std::string& target) {
    stepBegan_ = time_.now();
    serverEnded_ = false;
    powerFailed_ = false;
    settings_ = settings;
    faults_.begin({});
    heal();
    server_->change(settings);
    server_->resetStatistics();
    disk_.setTarget(target);
    faults_.begin(std::move(faults));
}

void World::heal() {
    faults_.end();
    disk_.heal();
    line_.setConnected(true);
    serverBack_.reset();
    cableBack_.reset();
    if (server_ != nullptr && server_->ended()) {
        server_.reset();
    }
    if (!serverRuns()) {
        startServer();
    }
}

void World::startServer() {
    inServer([&] {
        if (server_ == nullptr) {
            journal_.note(time_.now(), "server starts");
            server_ = std::make_unique<SimulatedServer>(time_, line_, disk_, portSettings_);
            server_->change(settings_);
        }
        server_->clickStartStop();
    });
}

void World::endServer(bool powerFails, Time downFor) {
    journal_.note(time_.now(), powerFails ? "power fails" : "server killed");
    serverEnded_ = true;
    powerFailed_ = powerFailed_ || powerFails;
    disk_.cutOff();
    if (server_ != nullptr) {
        server_->abandon();
        server_.reset();
    }
    disk_.revive();
    if (powerFails) {
        disk_.losePower();
    }
    line_.discard(Direction::ToServer);
    serverBack_ = time_.now() + downFor;
}

void World::stopServer(Time downFor) {
    journal_.note(time_.now(), "server stopped");
    inServer([&] { server_->clickStartStop(); });
    if (!serverBack_) {
        serverBack_ = time_.now() + downFor;
    }
}

template <typename Work>
void World::inServer(Work work) {
    std::optional<ServerEnded> ended;
    try {
        work();
        ended = disk_.ended();
    } catch (const ServerEnded& end) {
        ended = end;
    }
    if (ended) {
        endServer(ended->powerFailed, ended->downFor);
    }
}

void World::happen(const Fault& fault) {
    const Time lasting = std::chrono::milliseconds(fault.amount);
    switch (fault.kind) {
        case FaultKind::CableCut:
            journal_.note(time_.now(), "cable cut");
            line_.setConnected(false);
            cableBack_ = time_.now() + lasting;
            break;
        case FaultKind::ServerStopped:
            if (serverRuns()) {
                stopServer(lasting);
            }
            break;
        default:
            if (server_ != nullptr) {
                endServer(fault.kind == FaultKind::PowerFailsMeanwhile, lasting);
            }
    }
}

void World::advance(Time limit) {
    const Time began = time_.now();
    const auto due = [&](const std::optional<Time>& moment) { return moment && *moment <= time_.now(); };
    Time next = limit;
    for (const auto& moment : {line_.nextArrival(Direction::ToOrganiser), serverBack_, cableBack_}) {
        if (moment && *moment > began) {  // what came before and nobody took is no event
            next = std::min(next, *moment);
        }
    }
    if (const auto tick = time_.nextTick(); tick && *tick <= next) {
        inServer([&] { time_.runNextTick(); });
        next = time_.now();
    }
    time_.moveTo(next);
    const Time sinceBegin = time_.now() - stepBegan_;
    for (const Fault& fault : faults_.ofTime(static_cast<std::uint64_t>(sinceBegin.count()) / 1000U)) {
        happen(fault);
    }
    if (due(cableBack_)) {
        line_.setConnected(true);
        cableBack_.reset();
    }
    if (due(serverBack_)) {
        serverBack_.reset();
        if (!serverRuns()) {
            startServer();
        }
    }
    require(sinceBegin < kLongestStep, "A conversation does not come to its end.");
    check();
}

void World::run(Time span) {
    for (const Time end = time_.now() + span; time_.now() < end;) {
        advance(end);
    }
}

void World::check() {
    if (server_ != nullptr) {
        require(server_->isConsistent(), "Timers, sequences or budget of the link do not fit its state.");
    }
    require(disk_.openFiles() <= kMostOpenFiles, "The server has more files open than it needs.");
}

}  // namespace velmora::simulation
