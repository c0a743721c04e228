#include <optional>

#include "platform/posix/calendar.h"
#include "platform/posix/zone_at.h"

namespace velmora {
namespace {

constexpr std::time_t kWeek = std::time_t{7} * 24 * 60 * 60;
constexpr int kWeeksOfAYear = 53;

bool flagged(const std::tm& calendar) {
    return calendar.tm_isdst > 0;
}

/// The nearest calendar time, by weeks and within a year, on the other side of a change of the daylight
/// saving flag; the shortest season of any zone lasts four weeks.
std::optional<std::tm> otherSeason(std::time_t instant, bool flag) {
    for (int weeks = 1; weeks <= kWeeksOfAYear; ++weeks) {
        for (const std::time_t away : {-weeks * kWeek, weeks * kWeek}) {
            const std::tm calendar = localCalendar(instant + away);
            if (flagged(calendar) != flag) {
                return calendar;
            }
        }
    }
    return std::nullopt;
}

}  // namespace

ZoneInformation zoneInformation(std::chrono::system_clock::time_point instant) {
    const std::time_t seconds = wholeSeconds(instant);
    const std::tm calendar = localCalendar(seconds);
    ZoneInformation information;
    information.offsetMinutes = static_cast<int>(calendar.tm_gmtoff / 60);
    information.daylight = flagged(calendar);
    const std::optional<std::tm> other = otherSeason(seconds, flagged(calendar));
    if (other && other->tm_gmtoff != calendar.tm_gmtoff) {
        information.daylight = calendar.tm_gmtoff > other->tm_gmtoff;
    }
    return information;
}

ZoneInformation zoneInformation() {
    return zoneInformation(std::chrono::system_clock::now());
}

}  // namespace velmora
