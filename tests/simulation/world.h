// The simulated world: server, line and disk on one clock, and what becomes of them meanwhile.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "simulated_server.h"

namespace velmora::simulation {

/// The line of an episode.
struct LineForm {
    unsigned baud = 9600;
    Time delay{0};
};

/// Lets time pass from one event to the next. After each of them the server must be in order.
class World {
  public:
    World(std::uint64_t seed, const LineForm& form, Journal& journal);

    /// A step begins, with its faults and the settings that hold from here on. The server runs.
    void beginStep(std::vector<Fault> faults, const ServerSettings& settings, const std::string& target);
    /// What was damaged is mended; the server runs afterwards.
    void heal();

    /// Lets the next thing happen, or time pass until `limit` if nothing does before.
    void advance(Time limit);
    /// Lets time pass.
    void run(Time span);

    VirtualTime& time() { return time_; }
    SimulatedLine& line() { return line_; }
    SimulatedDisk& disk() { return disk_; }
    /// Requires: it runs, as after beginStep and heal.
    SimulatedServer& server() { return *server_; }
    const FaultsOfStep& faults() const { return faults_; }
    Journal& journal() { return journal_; }
    /// Whether the server's process ended in this step.
    bool serverEnded() const { return serverEnded_; }
    bool serverRuns() const { return server_ != nullptr && server_->running(); }
    /// Whether the power failed in this step.
    bool powerFailed() const { return powerFailed_; }

  private:
    void startServer();
    void endServer(bool powerFails, Time downFor);
    void stopServer(Time downFor);
    void happen(const Fault& fault);
    void check();
    /// Runs what the server does; it may end in it.
    template <typename Work>
    void inServer(Work work);

    VirtualTime time_;
    FaultsOfStep faults_;
    Journal& journal_;
    SimulatedLine line_;
    SimulatedDisk disk_;
    std::string portSettings_;
    ServerSettings settings_;
    std::unique_ptr<SimulatedServer> server_;
    Time stepBegan_{0};
    std::optional<Time> serverBack_;
    std::optional<Time> cableBack_;
    bool serverEnded_ = false;
    bool powerFailed_ = false;
};

}  // namespace velmora::simulation
