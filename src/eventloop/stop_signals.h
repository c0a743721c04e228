// Requests of the system to stop (SIGINT and SIGTERM on POSIX) as events of the event loop.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace velmora {

/// While it lives, a request to stop runs a handler on the event loop instead of ending the program at
/// once. Make it before any other thread exists: the signals are blocked for the threads made after it.
class StopSignals {
  public:
    /// Throws std::system_error when the system has no descriptor left.
    explicit StopSignals(std::function<void()> handler);
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

  private:
    void read();

    std::function<void()> handler_;
    int descriptor_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace velmora
