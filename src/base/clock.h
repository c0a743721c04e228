// The injected clock.
#pragma once

#include <chrono>

namespace velmora {

/// A calendar date and time of day, Gregorian, without a zone: month 1-12, day 1-31, hour 0-23.
struct DateTime {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const DateTime&, const DateTime&) = default;
};

/// Wall clock and monotonic clock of the machine.
class Clock {
  public:
    virtual ~Clock() = default;

    /// The local date and time now; fractions of a second are dropped.
    virtual DateTime localTime() const = 0;
    /// Coordinated universal time now; fractions of a second are dropped.
    virtual DateTime universalTime() const = 0;
    /// Seconds since local midnight, with fractions: 0 up to 86,400.
    virtual double secondsSinceMidnight() const = 0;
    /// A time that only grows, from an arbitrary zero.
    virtual std::chrono::microseconds monotonic() const = 0;
};

}  // namespace velmora
