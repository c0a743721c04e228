// Looking at a port's queue often, for systems that tell nothing of bytes that come.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "base/clock.h"
#include "base/timer.h"

namespace velmora {

/// While a conversation is warm, that is for two seconds after bytes were last read, it looks whether more
/// wait and then runs the poll: every millisecond when they may make a frame whole, so that an answer leaves
/// at once, and less often while that cannot be. When nobody talks it does nothing: the first bytes are found
/// by the poll's own tick.
class QueueWatch {
  public:
    static constexpr std::chrono::milliseconds kShortest{1};
    static constexpr std::chrono::milliseconds kLongest{20};
    static constexpr std::chrono::seconds kWarmFor{2};

    /// What it works with; `timer` and `clock` must outlive it. `bytesWait` tells whether an open port is
    /// worth a poll: it has bytes, or failed; `soonestFrame` how long it takes at least until a frame is
    /// whole.
    QueueWatch(Timer& timer, const Clock& clock, std::function<bool(std::intptr_t handle)> bytesWait,
               std::function<std::chrono::nanoseconds()> soonestFrame, std::function<void()> poll);
    ~QueueWatch();
    QueueWatch(const QueueWatch&) = delete;
    QueueWatch& operator=(const QueueWatch&) = delete;

    void portOpened(std::intptr_t handle);
    void portClosing();
    /// Bytes were read from the open port.
    void portRead();
    /// Switched on and off together with the poll; while it is off nothing is looked at.
    void setActive(bool active) { active_ = active; }

  private:
    void look();
    void pace();

    Timer& timer_;
    const Clock& clock_;
    std::function<bool(std::intptr_t)> bytesWait_;
    std::function<std::chrono::nanoseconds()> soonestFrame_;
    std::function<void()> poll_;
    std::intptr_t handle_ = 0;
    std::chrono::microseconds lastRead_{0};
    bool active_ = true;
};

}  // namespace velmora
