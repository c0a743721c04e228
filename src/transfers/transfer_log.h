// What is told of files besides the answers to the Organiser.
#pragma once

#include <string>

#include "base/path_rules.h"
#include "base/run_time_error.h"
#include "link/server_window.h"
#include "link/trace.h"
#include "transfers/incomplete_save.h"

namespace velmora {

/// Writes a line to the server's log and the same to the trace, which is the log of a server with a window.
/// Holds references only; window, trace and rules must outlive it.
class TransferLog {
  public:
    TransferLog(ServerWindow& window, Trace& trace, const PathRules& rules)
        : window_(window), trace_(trace), rules_(rules) {}

    /// Something worth knowing. The line is in Windows-1252.
    void note(const std::string& line);
    /// A failure that the transfer survived: a warning in the window, too. `what` is in Windows-1252.
    void warn(const std::string& what, const RunTimeError& why);
    /// A save broke off: the log tells all of it, the window that contact was lost.
    void saveBrokeOff(const IncompleteSave& save);

  private:
    ServerWindow& window_;
    Trace& trace_;
    const PathRules& rules_;
};

}  // namespace velmora
