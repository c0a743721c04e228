// The server as its programs assemble it, with the simulated world around it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "simulated_disk.h"
#include "simulated_line.h"
#include "virtual_time.h"

namespace velmora::simulation {

/// Where the server keeps what.
inline const std::string kDownloadFolder = "/psion";
inline const std::string kProgramData = "/data";
inline const std::string kCopiesFolder = kProgramData + "/Earlier copies";

/// What the user can change while the server runs.
struct ServerSettings {
    std::int32_t dataFileType = 0;
    bool commonWorksheets = false;
    bool stayInFolder = false;
    bool stopsOnExit = true;
    bool endsOnShutdown = true;
};

/// What the window's counters show.
struct Statistics {
    std::uint64_t bytesReceived = 0;
    std::uint64_t bytesSent = 0;
    std::uint64_t filesReceived = 0;
    std::uint64_t filesSent = 0;
    friend bool operator==(const Statistics&, const Statistics&) = default;
};

/// One process of the server. All that it is given must outlive it. Every call may throw ServerEnded.
class SimulatedServer {
  public:
    /// `settings` like "9600,N,8,1".
    SimulatedServer(VirtualTime& time, SimulatedLine& line, SimulatedDisk& disk, const std::string& settings);
    ~SimulatedServer();

    void change(const ServerSettings& settings);
    /// A click on Start or Stop.
    void clickStartStop();
    bool running() const;
    /// Whether the program has ended itself.
    bool ended() const;
    /// Whether the server waits for a link and has nothing open.
    bool idle() const;
    /// PLP::isConsistent
    bool isConsistent() const;
    Statistics statistics() const;
    void resetStatistics();
    /// The process ends: nothing that it still does reaches the line.
    void abandon();

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace velmora::simulation
