// Waking up when bytes come.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>

#include "base/clock.h"
#include "serial/port_observer.h"

namespace velmora {

/// Watches the open port, so that the poll runs as soon as bytes wait instead of at its next tick. On Windows
/// nothing tells of them: a COM port that is not overlapped has no handle to wait on. There the port is
/// looked at up to every millisecond for as long as bytes keep coming (QueueWatch), and the first of them are
/// found by the poll.
///
/// The poll may be switched off while the link works; the watch then rests with it, since a descriptor that
/// stays readable would otherwise keep the event loop busy. For the same reason it rests once it has woken
/// the poll, until that is switched on again, as a poll that reads is, or ticks.
class PortWatcher : public PortObserver {
  public:
    /// `onReadable` runs on the event loop when the port has bytes or has hung up. `soonestFrame`: how long
    /// it takes at least until bytes make a frame whole. `clock` must outlive it.
    PortWatcher(std::function<void()> onReadable,
                const std::function<std::chrono::nanoseconds()>& soonestFrame, const Clock& clock);
    ~PortWatcher() override;
    PortWatcher(const PortWatcher&) = delete;
    PortWatcher& operator=(const PortWatcher&) = delete;

    void portOpened(std::intptr_t handle) override;
    void portClosing(std::intptr_t handle) override;
    void portRead(std::string_view bytes) override;
    /// Switches the watch on and off together with the poll.
    void setActive(bool active);
    /// Whether bytes, or the end of the port, will wake the poll.
    bool watches() const;

  private:
    class Watch;  // the system's side

    std::unique_ptr<Watch> watch_;
};

/// A poll timer that takes the watch along when it is switched on and off, and switches a watch that rests on
/// again when it ticks.
template <typename TimerBase>
class WatchedTimer : public TimerBase {
  public:
    /// `watcher` must outlive it; the rest is the timer's own.
    template <typename... Arguments>
    explicit WatchedTimer(PortWatcher& watcher, Arguments&&... rest)
        : TimerBase(std::forward<Arguments>(rest)...), watcher_(watcher) {}
    void setEnabled(bool enabled) override {
        TimerBase::setEnabled(enabled);
        watcher_.setActive(enabled);
    }

  protected:
    void tick() override {
        watcher_.setActive(true);
        TimerBase::tick();
    }

  private:
    PortWatcher& watcher_;
};

}  // namespace velmora
