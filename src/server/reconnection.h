// Waiting for a port that was lost or is not there yet.
#pragma once

#include <chrono>
#include <functional>
#include <utility>

#include "base/timer.h"
#include "server/wanted_port.h"

namespace velmora {

/// Starts the server when its port is back. While it waits it looks once a second, and a moment after each
/// event of an adapter: a permission may come later than its device, a device manager may not run, and of a
/// link that points elsewhere nobody tells.
class Reconnection {
  public:
    /// A plug makes many events; they are over when this long has passed since the first.
    static constexpr std::chrono::milliseconds kSettle{200};
    static constexpr std::chrono::milliseconds kTick{1000};
    /// A port that failed without being pulled is left alone for so many ticks: it may fail for good.
    static constexpr int kTicksOfStayed = 10;
    /// A computer that is about to sleep takes so many ticks at most until it does; if it is awake longer,
    /// the word of its waking has been lost.
    static constexpr int kTicksToSleep = 30;

    /// `timer` must outlive it and be for it alone. `look` finds the port; `start` starts the server and says
    /// whether it runs; it may also refuse for now, while the user is busy with a dialog.
    Reconnection(Timer& timer, std::function<PortPresence()> look, std::function<bool()> start);
    ~Reconnection();
    Reconnection(const Reconnection&) = delete;
    Reconnection& operator=(const Reconnection&) = delete;

    /// Waits from now on. `gone`: the port is known not to be the one that was open, wherever it is.
    void begin(bool gone);
    /// Waits no longer: the server runs, or the user has stopped it.
    void end();
    bool waiting() const { return waiting_; }
    /// An adapter came, went or changed.
    void adaptersChanged();
    /// The computer is about to sleep: nothing is started before it is awake again.
    void computerSleeps() { ticksToSleep_ = kTicksToSleep; }
    /// It is awake.
    void computerWakes();

  private:
    void tick();

    Timer& timer_;
    std::function<PortPresence()> look_;
    std::function<bool()> start_;
    bool waiting_ = false;
    bool settling_ = false;
    bool gone_ = false;
    int stayed_ = 0;
    int ticksToSleep_ = 0;  // nothing is looked for meanwhile
};

}  // namespace velmora
