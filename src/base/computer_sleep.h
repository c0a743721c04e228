// Who tells of the computer's sleep, and puts it off.
#pragma once

#include <functional>
#include <utility>

namespace velmora {

enum class SleepEvent {
    Sleeps,  ///< the computer is about to sleep
    Wakes,   ///< it is awake again, or stayed awake after all
};

/// Programs give the server the system's, tests a scripted one. Where the system tells nothing, or does not
/// let itself be kept awake, nothing happens.
class ComputerSleep {
  public:
    virtual ~ComputerSleep() = default;

    /// Whether the computer is to stay awake, until the next call. Never fails: a computer that cannot be
    /// kept awake sleeps.
    virtual void keepAwake(bool wanted) = 0;

    /// What hears of the events. It must outlive this object or be replaced by an empty one. As far as the
    /// system lets itself be asked, the computer sleeps only after the handler has returned.
    void onEvent(std::function<void(SleepEvent)> handler) { handler_ = std::move(handler); }

  protected:
    /// Runs the handler, for the implementations.
    void tell(SleepEvent event) const {
        if (handler_) {
            handler_(event);
        }
    }

  private:
    std::function<void(SleepEvent)> handler_;
};

}  // namespace velmora
