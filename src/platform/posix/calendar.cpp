#include "platform/posix/calendar.h"

namespace velmora {

std::time_t wholeSeconds(std::chrono::system_clock::time_point instant) {
    return std::chrono::floor<std::chrono::seconds>(instant).time_since_epoch().count();
}

std::tm localCalendar(std::time_t seconds) {
    // localtime_r alone reads the zone only once in the life of a process.
    tzset();
    std::tm calendar{};
    if (localtime_r(&seconds, &calendar) == nullptr) {
        calendar = {};
        gmtime_r(&seconds, &calendar);
    }
    return calendar;
}

}  // namespace velmora
