#include "server/sleep_watch.h"

#include <utility>

#include "link/server_state.h"

namespace velmora {

SleepWatch::SleepWatch(ComputerSleep& sleep, Timer& timer, SleepActions actions)
    : sleep_(sleep), timer_(timer) {
    timer_.setInterval(kSilence);
    timer_.onTick([this] { tick(); });
    sleep_.onEvent([actions = std::move(actions)](SleepEvent event) {
        (event == SleepEvent::Sleeps ? actions.sleeps : actions.wakes)();
    });
}

SleepWatch::~SleepWatch() {
    sleep_.onEvent({});
    timer_.onTick({});
    keepAwake(false);
}

void SleepWatch::serverIs(std::int32_t state) {
    const bool open = hasFileOpen(state);
    if (open != fileOpen_) {
        fileOpen_ = open;
        keepAwake(open);
    }
}

void SleepWatch::heard() {
    heard_ = true;
    if (fileOpen_) {
        keepAwake(true);
    }
}

void SleepWatch::tick() {
    if (!std::exchange(heard_, false)) {
        keepAwake(false);
    }
}

void SleepWatch::keepAwake(bool wanted) {
    if (wanted == kept_) {
        return;
    }
    kept_ = wanted;
    timer_.setEnabled(wanted);
    sleep_.keepAwake(wanted);
}

}  // namespace velmora
