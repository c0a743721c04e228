// A timer for intervals of a millisecond, on Windows.
#pragma once

#include <windows.h>

#include <QObject>

#include "base/timer.h"
#include "eventloop/qt_timer.h"

namespace velmora {

/// A repeating timer on the event loop of the thread that made it. The toolkit's own timers are as fine as
/// the system's clock, which is 15 ms as a rule. This one is a high-resolution waitable timer, which leaves
/// that clock alone; where the system has none (before Windows 10, version 1803) the clock is made finer for
/// as long as the timer is enabled.
///
/// The waitable timer is waited for in the event loop's stead: whenever the loop is about to wait for
/// messages, this waits for them and for the timer, and hands back at the first message. The toolkit's own
/// way to watch a handle takes a second thread, which would be woken for each tick only to wake this one.
///
/// While it is enabled, a program whose windows are all hidden keeps its resolution, which Windows 11 takes
/// away otherwise.
class HighResolutionTimer : public Timer {
  public:
    enum class Source { Best, SystemClock };

    explicit HighResolutionTimer(Source source = Source::Best);
    ~HighResolutionTimer() override;
    HighResolutionTimer(const HighResolutionTimer&) = delete;
    HighResolutionTimer& operator=(const HighResolutionTimer&) = delete;

    void setInterval(std::chrono::milliseconds interval) override;
    std::chrono::milliseconds interval() const override { return interval_; }
    void setEnabled(bool enabled) override;
    bool enabled() const override { return enabled_; }

  private:
    void run();
    void arm();
    void rest();
    void waitForTicks();

    HANDLE waitable_ = nullptr;  // none: ticks_ does it
    QMetaObject::Connection loop_;
    QtTimer ticks_;
    std::chrono::milliseconds interval_{0};
    bool enabled_ = false;
    bool running_ = false;  // what the system was asked for has to be given back
};

}  // namespace velmora
