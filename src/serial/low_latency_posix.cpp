#include "serial/low_latency_posix.h"

#include <sys/ioctl.h>

#include <optional>
#include <utility>

namespace velmora {
namespace {

std::optional<serial_struct> read(const LowLatency::Control& control) {
    serial_struct settings{};
    if (control(TIOCGSERIAL, settings) < 0) {
        return std::nullopt;
    }
    return settings;
}

bool isSet(const std::optional<serial_struct>& settings) {
    return settings && (settings->flags & ASYNC_LOW_LATENCY) != 0;
}

}  // namespace

void LowLatency::take(const Control& control) {
    ours_ = false;
    std::optional<serial_struct> settings = read(control);
    taken_ = isSet(settings);
    if (!settings || taken_) {
        return;
    }
    settings->flags |= ASYNC_LOW_LATENCY;
    // Some drivers take the call and leave the flag away.
    taken_ = control(TIOCSSERIAL, *settings) >= 0 && isSet(read(control));
    ours_ = taken_;
}

void LowLatency::giveBack(const Control& control) {
    taken_ = false;
    if (!std::exchange(ours_, false)) {
        return;
    }
    if (std::optional<serial_struct> settings = read(control)) {
        settings->flags &= ~ASYNC_LOW_LATENCY;
        control(TIOCSSERIAL, *settings);
    }
}

}  // namespace velmora
