// Requests of the system to stop as events of the event loop: SIGINT and SIGTERM on POSIX; on Windows Ctrl+C,
// Ctrl+Break, the closing of the console's window, the end of the session and, for a program without windows
// of its own, a request to close from outside (taskkill without /F).
#pragma once

#include <functional>
#include <memory>

namespace velmora {

/// While it lives, a request to stop runs a handler on the event loop instead of ending the program at once.
/// Only one at a time. On POSIX make it before any other thread exists: the signals are blocked for the
/// threads made after it.
///
/// Windows ends a program whose console closes or whose session ends a few seconds later in any case, and
/// sooner when the request was taken note of; so the handler should stop all that matters before it returns.
class StopSignals {
  public:
    /// Throws std::system_error when the system has no descriptor or handle left.
    explicit StopSignals(std::function<void()> handler);
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

  private:
    class Watch;  // the system's side

    std::unique_ptr<Watch> watch_;
};

}  // namespace velmora
