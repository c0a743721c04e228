#include "server/reconnection.h"

namespace velmora {

Reconnection::Reconnection(Timer& timer, std::function<PortPresence()> look, std::function<bool()> start)
    : timer_(timer), look_(std::move(look)), start_(std::move(start)) {
    timer_.onTick([this] { tick(); });
}

Reconnection::~Reconnection() {
    timer_.setEnabled(false);
    timer_.onTick({});
}

void Reconnection::begin(bool gone) {
    if (waiting_) {
        gone_ = gone_ || gone;
        return;
    }
    waiting_ = true;
    settling_ = false;
    gone_ = gone;
    stayed_ = 0;
    timer_.setInterval(kTick);
    timer_.setEnabled(true);
}

void Reconnection::end() {
    waiting_ = false;
    timer_.setEnabled(false);
}

// The first event of many starts the count-down: those that follow must not put it off for ever.
void Reconnection::adaptersChanged() {
    if (waiting_ && !settling_ && ticksToSleep_ == 0) {
        settling_ = true;
        timer_.setInterval(kSettle);
    }
}

void Reconnection::computerWakes() {
    ticksToSleep_ = 0;
    adaptersChanged();
}

void Reconnection::tick() {
    if (settling_) {
        settling_ = false;
        timer_.setInterval(kTick);
    }
    if (ticksToSleep_ > 0) {
        --ticksToSleep_;
        return;
    }
    const PortPresence presence = look_();
    if (presence != PortPresence::Present && presence != PortPresence::Stayed) {
        gone_ = true;
        return;
    }
    if (presence == PortPresence::Stayed && !gone_ && ++stayed_ < kTicksOfStayed) {
        return;
    }
    stayed_ = 0;
    if (waiting_ && start_()) {
        end();
    }
}

}  // namespace velmora
