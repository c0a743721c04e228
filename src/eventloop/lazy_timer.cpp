#include "eventloop/lazy_timer.h"

#include <algorithm>

namespace velmora {

using std::chrono::microseconds;
using std::chrono::milliseconds;

LazyTimer::LazyTimer(Timer& ticks, const Clock& clock) : ticks_(ticks), clock_(clock) {
    ticks_.onTick([this] { wake(); });
}

LazyTimer::~LazyTimer() {
    ticks_.setEnabled(false);
    ticks_.onTick({});
}

void LazyTimer::setInterval(milliseconds interval) {
    interval_ = interval;
    countDown();
}

void LazyTimer::setEnabled(bool enabled) {
    if (enabled != enabled_) {
        enabled_ = enabled;
        countDown();
    }
}

void LazyTimer::countDown() {
    if (!counts()) {
        return;
    }
    due_ = clock_.monotonic() + interval_;
    if (!ticks_.enabled() || wakes_ > due_) {
        wakeAt(due_);
    }
}

void LazyTimer::wakeAt(microseconds time) {
    wakes_ = time;
    ticks_.setEnabled(false);
    ticks_.setInterval(std::chrono::ceil<milliseconds>(time - clock_.monotonic()));
    ticks_.setEnabled(true);
}

void LazyTimer::wake() {
    const microseconds now = clock_.monotonic();
    if (!counts()) {
        ticks_.setEnabled(false);
    } else if (now < due_) {
        wakeAt(due_);
    } else {
        // Ticks that were missed are not made up for.
        due_ = std::max(due_ + interval_, now + milliseconds(1));
        wakeAt(due_);
        tick();
    }
}

}  // namespace velmora
