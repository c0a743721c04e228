#include "platform/posix/posix_clock.h"

#include <algorithm>
#include <utility>

#include "platform/posix/calendar.h"

namespace velmora {
namespace {

DateTime dateTimeOf(const std::tm& calendar) {
    DateTime time;
    time.year = calendar.tm_year + 1900;
    time.month = calendar.tm_mon + 1;
    time.day = calendar.tm_mday;
    time.hour = calendar.tm_hour;
    time.minute = calendar.tm_min;
    time.second = std::min(calendar.tm_sec, 59);  // a leap second shows as the one before it
    return time;
}

}  // namespace

PosixClock::PosixClock(Now now) : now_(std::move(now)) {}

DateTime PosixClock::localTime() const {
    return dateTimeOf(localCalendar(wholeSeconds(now_())));
}

DateTime PosixClock::universalTime() const {
    const std::time_t seconds = wholeSeconds(now_());
    std::tm calendar{};
    gmtime_r(&seconds, &calendar);
    return dateTimeOf(calendar);
}

double PosixClock::secondsSinceMidnight() const {
    const std::chrono::system_clock::time_point now = now_();
    const DateTime time = dateTimeOf(localCalendar(wholeSeconds(now)));
    const auto fraction = now - std::chrono::floor<std::chrono::seconds>(now);
    return time.hour * 3600.0 + time.minute * 60.0 + time.second +
           std::chrono::duration<double>(fraction).count();
}

std::chrono::microseconds PosixClock::monotonic() const {
    return std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

}  // namespace velmora
