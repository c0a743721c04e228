// When a list of the adapters that are present is looked up again.
#pragma once

#include <chrono>
#include <functional>

#include "base/timer.h"

namespace velmora {

/// Has a list follow the adapters within half a second while it lives: by the system's word, and where the
/// system tells nothing of adapters by looking all the time.
class AdapterFollower {
  public:
    /// By then the many events of one plug are over.
    static constexpr std::chrono::milliseconds kSettle{200};
    static constexpr std::chrono::milliseconds kLook{400};

    /// `timer` must outlive it and be for it alone. `told`: the system tells of adapters. `look` looks the
    /// list up.
    AdapterFollower(Timer& timer, bool told, std::function<void()> look);
    ~AdapterFollower();
    AdapterFollower(const AdapterFollower&) = delete;
    AdapterFollower& operator=(const AdapterFollower&) = delete;

    /// An adapter came, went or changed.
    void adaptersChanged();

  private:
    Timer& timer_;
    bool told_;
    std::function<void()> look_;
};

}  // namespace velmora
