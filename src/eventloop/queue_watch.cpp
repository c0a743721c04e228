#include "eventloop/queue_watch.h"

#include <algorithm>
#include <utility>

namespace velmora {

QueueWatch::QueueWatch(Timer& timer, const Clock& clock, std::function<bool(std::intptr_t)> bytesWait,
                       std::function<std::chrono::nanoseconds()> soonestFrame, std::function<void()> poll)
    : timer_(timer),
      clock_(clock),
      bytesWait_(std::move(bytesWait)),
      soonestFrame_(std::move(soonestFrame)),
      poll_(std::move(poll)) {
    timer_.setInterval(kShortest);
    timer_.onTick([this] { look(); });
}

QueueWatch::~QueueWatch() {
    timer_.setEnabled(false);
    timer_.onTick({});
}

void QueueWatch::portOpened(std::intptr_t handle) {
    handle_ = handle;
}

void QueueWatch::portClosing() {
    timer_.setEnabled(false);
}

void QueueWatch::portRead() {
    lastRead_ = clock_.monotonic();
    timer_.setEnabled(true);
}

void QueueWatch::look() {
    if (clock_.monotonic() - lastRead_ >= kWarmFor) {
        timer_.setEnabled(false);
        timer_.setInterval(kShortest);  // for the next conversation
        return;
    }
    if (active_ && bytesWait_(handle_)) {
        poll_();
    }
    pace();
}

/// Sets the interval only when it changes, which costs more than a look.
void QueueWatch::pace() {
    const auto wanted =
        std::clamp(std::chrono::floor<std::chrono::milliseconds>(soonestFrame_()), kShortest, kLongest);
    if (timer_.interval() != wanted) {
        timer_.setInterval(wanted);
    }
}

}  // namespace velmora
