#include "serial/wire_time.h"

#include <algorithm>

namespace velmora {

std::chrono::nanoseconds byteTime(const LineSettings& settings) {
    constexpr int kStartBit = 1;
    const int parityBit = settings.parity == Parity::None ? 0 : 1;
    const int halves = 2 * (kStartBit + settings.dataBits + parityBit) + stopHalves(settings.stopBits);
    return std::chrono::nanoseconds(std::chrono::seconds(halves)) / (2 * std::int64_t{settings.baud});
}

void WireTime::handOver(std::size_t bytes, Time now) {
    const auto start = std::max<std::chrono::nanoseconds>(now, idleFrom_);
    idleFrom_ = start + byteTime_ * static_cast<std::int64_t>(bytes);
}

void WireTime::allOut(Time now) {
    idleFrom_ = std::min<std::chrono::nanoseconds>(now, idleFrom_);
}

WireTime::Time WireTime::left(Time now) const {
    return std::max(std::chrono::ceil<Time>(idleFrom_ - now), Time::zero());
}

}  // namespace velmora
