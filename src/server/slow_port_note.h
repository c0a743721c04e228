// Telling that an adapter slows the line down.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "link/server_window.h"
#include "link/trace.h"

namespace velmora {

/// Says in the log and in the trace, once, that a port's adapter holds bytes back for so long that the line
/// is not used well, and what helps.
class SlowPortNote {
  public:
    /// Both must outlive it.
    SlowPortNote(ServerWindow& window, Trace& trace) : window_(window), trace_(trace) {}

    /// The server has opened a device; `heldBack` as CommDevice has it, `settings` the port's mode string.
    void opened(const std::string& device, std::optional<std::chrono::milliseconds> heldBack,
                const std::string& settings);

  private:
    ServerWindow& window_;
    Trace& trace_;
    std::string told_;
};

}  // namespace velmora
