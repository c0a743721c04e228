#include <QSocketNotifier>
#include <utility>

#include "eventloop/port_watcher.h"

namespace velmora {

/// A notifier on the port's descriptor, which exists while the port is open.
class PortWatcher::Watch {
  public:
    explicit Watch(std::function<void()> onReadable) : onReadable_(std::move(onReadable)) {}

    void begin(std::intptr_t descriptor) {
        notifier_ = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
        notifier_->setEnabled(active_);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { wake(); });
    }
    void end() {
        if (notifier_) {
            // The port may be closed from inside the notifier's own signal.
            notifier_->setEnabled(false);
            notifier_.release()->deleteLater();
        }
    }
    void setActive(bool active) {
        active_ = active;
        if (notifier_) {
            notifier_->setEnabled(active);
        }
    }
    bool watches() const { return notifier_ && notifier_->isEnabled(); }

  private:
    void wake() {
        // Once only: a poll that reads switches itself, and so the watch, on again. One that leaves the bytes
        // where they are (the link is being stopped) must not be woken by them over and over.
        notifier_->setEnabled(false);
        onReadable_();
    }

    std::function<void()> onReadable_;
    std::unique_ptr<QSocketNotifier> notifier_;
    bool active_ = true;
};

PortWatcher::PortWatcher(std::function<void()> onReadable,
                         const std::function<std::chrono::nanoseconds()>& /*soonestFrame*/,
                         const Clock& /*clock*/)
    : watch_(std::make_unique<Watch>(std::move(onReadable))) {}
PortWatcher::~PortWatcher() = default;

void PortWatcher::portOpened(std::intptr_t handle) {
    watch_->begin(handle);
}

void PortWatcher::portClosing(std::intptr_t /*handle*/) {
    watch_->end();
}

void PortWatcher::portRead(std::string_view /*bytes*/) {}

void PortWatcher::setActive(bool active) {
    watch_->setActive(active);
}

bool PortWatcher::watches() const {
    return watch_->watches();
}

}  // namespace velmora
