// Requests of the system to stop as events of the event loop: SIGINT, SIGTERM and SIGHUP on POSIX; on Windows
// Ctrl+C, Ctrl+Break, the closing of the console's window, the end of the session and, for a program without
// windows of its own, a request to close from outside (taskkill without /F).
#pragma once

#include <functional>
#include <memory>

namespace velmora {

/// While it lives, requests to stop wait for StopSignals instead of ending the program at once; those that
/// are still waiting at its end are dropped. Make it first thing in main, before the toolkit: on POSIX a
/// signal goes to any thread that has not blocked it, and only threads made after this have. A hang-up that
/// is ignored when it is made (nohup) stays ignored. On Windows there is nothing to hold.
class HeldStopSignals {
  public:
    HeldStopSignals();
    ~HeldStopSignals();
    HeldStopSignals(const HeldStopSignals&) = delete;
    HeldStopSignals& operator=(const HeldStopSignals&) = delete;

    /// The program has stopped and is about to end: until it is gone, requests wait also when this is no
    /// more, so that none can give it another exit status.
    void keepToTheEnd();

  private:
    friend class StopSignals;
    class Set;  // the system's side

    std::unique_ptr<Set> set_;
};

/// While it lives, a request to stop runs a handler on the event loop; also one that waits already. Only one
/// at a time.
///
/// Windows ends a program whose console closes or whose session ends a few seconds later in any case, and
/// sooner when the request was taken note of; so the handler should stop all that matters before it returns.
class StopSignals {
  public:
    /// `held` must outlive it. Throws std::system_error when the system has no descriptor or handle left.
    StopSignals(const HeldStopSignals& held, std::function<void()> handler);
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

  private:
    class Watch;  // the system's side

    std::unique_ptr<Watch> watch_;
};

}  // namespace velmora
