#include "ui/adapter_follower.h"

#include <utility>

namespace velmora {

AdapterFollower::AdapterFollower(Timer& timer, bool told, std::function<void()> look)
    : timer_(timer), told_(told), look_(std::move(look)) {
    timer_.onTick([this] {
        timer_.setEnabled(!told_);
        look_();
    });
    timer_.setInterval(told_ ? kSettle : kLook);
    timer_.setEnabled(!told_);
}

AdapterFollower::~AdapterFollower() {
    timer_.setEnabled(false);
    timer_.onTick({});
}

// The first event of many starts the count-down: those that follow must not put it off for ever.
void AdapterFollower::adaptersChanged() {
    timer_.setEnabled(true);
}

}  // namespace velmora
