// Looks after the server's port while the server does not run: finds its adapter, and waits for it.
#pragma once

#include <functional>

#include "base/timer.h"
#include "server/reconnection.h"
#include "server/wanted_port.h"

namespace velmora {

/// What a server does about a port that it cannot have.
enum class WaitFor {
    Nothing,   ///< stays stopped
    LostPort,  ///< waits for a port that was lost while it served
    AnyPort,   ///< waits also for one that was never there
};

/// The server controller tells it what happens; it finds the port before each start, and starts the server
/// again when the port that it waits for is back.
class PortKeeper {
  public:
    /// `timer` must outlive it and be for it alone. `waitFor` is asked each time. `restart` starts the server
    /// and says whether it runs.
    PortKeeper(WantedPortParts wanted, Timer& timer, std::function<WaitFor()> waitFor,
               std::function<bool()> restart)
        : wanted_(std::move(wanted)),
          waitFor_(std::move(waitFor)),
          reconnection_(
              timer, [this] { return wanted_.locate(WantedPort::Wanted::SameAdapter); }, std::move(restart)) {
    }

    /// The user, or the start of the program, starts the server.
    void beforeStart() { wanted_.locate(WantedPort::Wanted::Configured); }
    /// The server runs on the port.
    void started() {
        wanted_.opened();
        reconnection_.end();
    }
    /// The port could not be opened.
    void startFailed() {
        if (waitFor_() == WaitFor::AnyPort) {
            reconnection_.begin(true);
        }
    }
    /// The port failed while the server ran. `gone`: it is known to be away.
    void lost(bool gone) {
        if (waitFor_() != WaitFor::Nothing) {
            reconnection_.begin(gone);
        }
    }
    /// Whoever decides does not want to wait any longer.
    void giveUp() { reconnection_.end(); }
    /// As WantedPort::complaint.
    const std::string& complaint() const { return wanted_.complaint(); }
    bool waiting() const { return reconnection_.waiting(); }
    /// An adapter came, went or changed.
    void adaptersChanged() { reconnection_.adaptersChanged(); }
    /// As Reconnection has them.
    void computerSleeps() { reconnection_.computerSleeps(); }
    void computerWakes() { reconnection_.computerWakes(); }

  private:
    WantedPort wanted_;
    std::function<WaitFor()> waitFor_;
    Reconnection reconnection_;
};

}  // namespace velmora
