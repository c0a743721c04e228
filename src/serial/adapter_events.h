// Who tells that serial adapters come and go.
#pragma once

#include <functional>
#include <utility>

namespace velmora {

/// What happened. Of a plug there may be several events, and by the time that one is told the adapter may be
/// gone again: whoever hears of one looks for himself.
enum class AdapterEvent {
    Changed,  ///< an adapter came or went, or something about one is different now
    Sleeps,   ///< the computer is about to sleep: ports are as good as pulled
    Wakes,    ///< it is awake again
};

/// Programs give the server the system's events, tests scripted ones.
class AdapterEvents {
  public:
    virtual ~AdapterEvents() = default;

    /// Whether the system tells of adapters; without it whoever wants to know looks from time to time.
    virtual bool live() const = 0;

    /// What hears of the events. It must outlive this object or be replaced by an empty one.
    void onEvent(std::function<void(AdapterEvent)> handler) { handler_ = std::move(handler); }

  protected:
    /// Runs the handler, for the implementations.
    void tell(AdapterEvent event) const {
        if (handler_) {
            handler_(event);
        }
    }

  private:
    std::function<void(AdapterEvent)> handler_;
};

}  // namespace velmora
