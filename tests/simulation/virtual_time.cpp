#include "virtual_time.h"

#include <algorithm>

namespace velmora::simulation {

VirtualTimer* VirtualTime::nextTimer() const {
    VirtualTimer* next = nullptr;
    for (VirtualTimer* timer : timers_) {
        if (timer->runs() && (next == nullptr || timer->due_ < next->due_)) {
            next = timer;
        }
    }
    return next;
}

std::optional<Time> VirtualTime::nextTick() const {
    const VirtualTimer* next = nextTimer();
    return next == nullptr ? std::nullopt : std::optional(next->due_);
}

void VirtualTime::runNextTick() {
    VirtualTimer* next = nextTimer();
    if (next == nullptr) {
        return;
    }
    moveTo(next->due_);
    next->due_ = now_ + next->interval_;
    next->tick();
}

double VirtualTime::secondsSinceMidnight() const {
    const auto local = now_ + kOffset;
    return std::chrono::duration<double>(local - std::chrono::floor<std::chrono::days>(local)).count();
}

DateTime VirtualTime::dateAt(Time time) {
    using namespace std::chrono;
    const sys_days begin = year{2026} / 1 / 1;
    const auto instant = begin + floor<seconds>(time);
    const auto day = floor<days>(instant);
    const year_month_day date(day);
    const hh_mm_ss clock(instant - day);
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(clock.hours().count()),
            static_cast<int>(clock.minutes().count()),
            static_cast<int>(clock.seconds().count())};
}

VirtualTimer::VirtualTimer(VirtualTime& time) : time_(time) {
    time_.timers_.push_back(this);
}

VirtualTimer::~VirtualTimer() {
    std::erase(time_.timers_, this);
}

void VirtualTimer::setInterval(std::chrono::milliseconds interval) {
    interval_ = interval;
    due_ = time_.now() + interval_;
}

void VirtualTimer::setEnabled(bool enabled) {
    if (enabled && !enabled_) {
        due_ = time_.now() + interval_;
    }
    enabled_ = enabled;
}

}  // namespace velmora::simulation
