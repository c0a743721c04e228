#include "eventloop/queue_watch.h"

#include <utility>

namespace velmora {

QueueWatch::QueueWatch(Timer& timer, const Clock& clock, std::function<bool(std::intptr_t)> bytesWait,
                       std::function<void()> poll)
    : timer_(timer), clock_(clock), bytesWait_(std::move(bytesWait)), poll_(std::move(poll)) {
    timer_.setInterval(kInterval);
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
    } else if (active_ && bytesWait_(handle_)) {
        poll_();
    }
}

}  // namespace velmora
