// The toolkit's timer behind our interface.
#pragma once

#include <QTimer>

#include "base/timer.h"

namespace velmora {

/// A repeating timer on the event loop of the thread that made it.
class QtTimer : public Timer {
  public:
    QtTimer() {
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { tick(); });
    }

    void setInterval(std::chrono::milliseconds interval) override {
        interval_ = interval;
        restart();
    }
    std::chrono::milliseconds interval() const override { return interval_; }
    void setEnabled(bool enabled) override {
        if (enabled != enabled_) {
            enabled_ = enabled;
            restart();
        }
    }
    bool enabled() const override { return enabled_; }

  private:
    void restart() {
        if (enabled_ && interval_.count() > 0) {
            timer_.start(interval_);
        } else {
            timer_.stop();
        }
    }

    QTimer timer_;
    std::chrono::milliseconds interval_{0};
    bool enabled_ = false;
};

}  // namespace velmora
