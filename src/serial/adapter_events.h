// Who tells that serial adapters come and go.
#pragma once

#include <functional>
#include <utility>

namespace velmora {

/// Tells that an adapter came or went, or that something about one is different now. Of a plug there may be
/// several events, and by the time that one is told the adapter may be gone again: whoever hears of one looks
/// for himself. Programs give the server the system's events, tests scripted ones.
class AdapterEvents {
  public:
    virtual ~AdapterEvents() = default;

    /// Whether the system tells of adapters; without it whoever wants to know looks from time to time.
    virtual bool live() const = 0;

    /// What hears of changes. It must outlive this object or be replaced by an empty one.
    void onChange(std::function<void()> handler) { handler_ = std::move(handler); }

  protected:
    /// Runs the handler, for the implementations.
    void tell() const {
        if (handler_) {
            handler_();
        }
    }

  private:
    std::function<void()> handler_;
};

}  // namespace velmora
