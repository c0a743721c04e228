// How long bytes take on the wire, and when those that were handed to a port can have left it.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

#include "serial/mode_string.h"

namespace velmora {

/// The time that one byte takes with these settings: start bit, data bits, parity bit, stop bits.
std::chrono::nanoseconds byteTime(const LineSettings& settings);

/// The bytes on their way out of a port. A port takes bytes at once and sends them at the line's rate, one
/// after the other; what a driver or an adapter tells of its buffer is not asked, since it is not to be
/// relied on. Has no clock: callers pass the time of any clock that only grows, always of the same one.
class WireTime {
  public:
    using Time = std::chrono::microseconds;

    /// A line on which bytes take no time.
    WireTime() = default;
    /// An idle line with these settings.
    explicit WireTime(const LineSettings& settings) : byteTime_(byteTime(settings)) {}

    /// The time that so many bytes take.
    std::chrono::nanoseconds of(std::size_t bytes) const {
        return byteTime_ * static_cast<std::int64_t>(bytes);
    }
    /// So many bytes are handed to the port; they leave behind those that are still on their way.
    void handOver(std::size_t bytes, Time now);
    /// The other side has answered the last of the bytes, so all have left. Without this, what is reckoned
    /// would pile up where a line is faster than its settings say: a pseudo-terminal, an adapter without a
    /// real line.
    void allOut(Time now);
    /// How long, from `now` on, the last byte handed over needs at least to be out; zero when it can be.
    Time left(Time now) const;

  private:
    std::chrono::nanoseconds byteTime_{0};
    std::chrono::nanoseconds idleFrom_{0};
};

}  // namespace velmora
