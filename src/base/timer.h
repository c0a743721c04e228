// The timer that the server is driven by. Programs give it an event loop's timer, tests a fake one.
#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace velmora {

/// A repeating timer: while enabled it ticks every interval until it is disabled.
/// A tick that was under way when the timer was disabled or restarted is never delivered.
class Timer {
  public:
    virtual ~Timer() = default;

    /// Sets the interval and restarts the count-down. The timer starts with an interval of 0, disabled;
    /// an interval of 0 never ticks.
    virtual void setInterval(std::chrono::milliseconds interval) = 0;
    virtual std::chrono::milliseconds interval() const = 0;

    /// Enabling starts a full count-down; enabling an enabled timer leaves its count-down as it is.
    virtual void setEnabled(bool enabled) = 0;
    virtual bool enabled() const = 0;

    /// What a tick runs. The handler must outlive the timer or be replaced by an empty one.
    void onTick(std::function<void()> handler) { handler_ = std::move(handler); }

  protected:
    /// Runs the handler, for the implementations.
    virtual void tick() {
        if (handler_) {
            handler_();
        }
    }

  private:
    std::function<void()> handler_;
};

}  // namespace velmora
