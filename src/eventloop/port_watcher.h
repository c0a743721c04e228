// Waking up when bytes come.
#pragma once

#include <QSocketNotifier>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

#include "serial/port_observer.h"

namespace velmora {

/// Watches the descriptor of the open port, so that the poll runs as soon as bytes wait instead of at its
/// next tick. The poll may be switched off while the link works; the watch then rests with it, since a
/// descriptor that stays readable would otherwise keep the event loop busy.
class PortWatcher : public PortObserver {
  public:
    /// `onReadable` runs on the event loop when the port has bytes or has hung up.
    explicit PortWatcher(std::function<void()> onReadable) : onReadable_(std::move(onReadable)) {}

    void portOpened(std::intptr_t handle) override {
        notifier_ = std::make_unique<QSocketNotifier>(handle, QSocketNotifier::Read);
        notifier_->setEnabled(active_);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { wake(); });
    }
    void portClosing(std::intptr_t /*handle*/) override {
        if (notifier_) {
            // The port may be closed from inside the notifier's own signal.
            notifier_->setEnabled(false);
            notifier_.release()->deleteLater();
        }
    }
    /// Switches the watch on and off together with the poll.
    void setActive(bool active) {
        active_ = active;
        if (notifier_) {
            notifier_->setEnabled(active);
        }
    }

  private:
    void wake() {
        // Once only: a poll that reads switches itself, and so the watch, on again. One that leaves the bytes
        // where they are (a question waits for its answer) must not be woken by them over and over.
        notifier_->setEnabled(false);
        onReadable_();
    }

    std::function<void()> onReadable_;
    std::unique_ptr<QSocketNotifier> notifier_;
    bool active_ = true;
};

/// A poll timer that takes the watch along when it is switched on and off.
template <typename TimerBase>
class WatchedTimer : public TimerBase {
  public:
    explicit WatchedTimer(PortWatcher& watcher) : watcher_(watcher) {}
    void setEnabled(bool enabled) override {
        TimerBase::setEnabled(enabled);
        watcher_.setActive(enabled);
    }

  private:
    PortWatcher& watcher_;
};

}  // namespace velmora
