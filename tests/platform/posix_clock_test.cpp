#include "platform/posix/posix_clock.h"

#include <gtest/gtest.h>

#include "support/zone_setting.h"

namespace velmora {

void PrintTo(const DateTime& time, std::ostream* out) {
    *out << time.year << '-' << time.month << '-' << time.day << ' ' << time.hour << ':' << time.minute << ':'
         << time.second;
}

namespace {

using test::utc;
using test::ZoneSetting;

PosixClock clockAt(std::chrono::system_clock::time_point instant) {
    return PosixClock([instant] { return instant; });
}

TEST(PosixClock, TellsUniversalAndLocalTime) {
    const ZoneSetting zone("CET-1CEST,M3.5.0,M10.5.0/3");
    const PosixClock clock = clockAt(utc(2010, 3, 28, 13, 5, 9));
    EXPECT_EQ(clock.universalTime(), (DateTime{2010, 3, 28, 13, 5, 9}));
    EXPECT_EQ(clock.localTime(), (DateTime{2010, 3, 28, 15, 5, 9}));
}

TEST(PosixClock, LocalTimeJumpsAtTheChange) {
    const ZoneSetting zone("CET-1CEST,M3.5.0,M10.5.0/3");
    EXPECT_EQ(clockAt(utc(2026, 3, 29, 0, 59, 59)).localTime(), (DateTime{2026, 3, 29, 1, 59, 59}));
    EXPECT_EQ(clockAt(utc(2026, 3, 29, 1, 0, 0)).localTime(), (DateTime{2026, 3, 29, 3, 0, 0}));
    EXPECT_EQ(clockAt(utc(2026, 10, 25, 0, 59, 59)).localTime(), (DateTime{2026, 10, 25, 2, 59, 59}));
    EXPECT_EQ(clockAt(utc(2026, 10, 25, 1, 0, 0)).localTime(), (DateTime{2026, 10, 25, 2, 0, 0}));
}

TEST(PosixClock, KnowsLeapDaysAndTheTurnOfTheYear) {
    const ZoneSetting zone("IST-5:30");
    EXPECT_EQ(clockAt(utc(2028, 2, 28, 18, 30)).localTime(), (DateTime{2028, 2, 29, 0, 0, 0}));
    EXPECT_EQ(clockAt(utc(2026, 12, 31, 18, 29, 59)).localTime(), (DateTime{2026, 12, 31, 23, 59, 59}));
    EXPECT_EQ(clockAt(utc(2026, 12, 31, 18, 30)).localTime(), (DateTime{2027, 1, 1, 0, 0, 0}));
}

TEST(PosixClock, DropsFractionsOfASecond) {
    const ZoneSetting zone("UTC0");
    const PosixClock clock = clockAt(utc(2026, 1, 1) - std::chrono::milliseconds(1));
    EXPECT_EQ(clock.universalTime(), (DateTime{2025, 12, 31, 23, 59, 59}));
    EXPECT_EQ(clock.localTime(), clock.universalTime());
    EXPECT_EQ(clockAt(utc(1969, 12, 31, 23, 59, 58) + std::chrono::milliseconds(5)).universalTime().second,
              58);
}

TEST(PosixClock, CountsSecondsOfTheLocalDayWithFractions) {
    const ZoneSetting zone("EST5");
    EXPECT_DOUBLE_EQ(clockAt(utc(2026, 1, 1, 5)).secondsSinceMidnight(), 0);
    EXPECT_DOUBLE_EQ(
        clockAt(utc(2026, 1, 2, 4, 59, 59) + std::chrono::milliseconds(500)).secondsSinceMidnight(),
        86'399.5);
}

TEST(PosixClock, MonotonicTimeNeverGoesBack) {
    const PosixClock clock;
    const auto first = clock.monotonic();
    EXPECT_GE(clock.monotonic(), first);
}

TEST(PosixClock, RunsByTheMachineUnlessToldOtherwise) {
    const ZoneSetting zone("UTC0");
    EXPECT_GE(PosixClock().universalTime().year, 2024);
}

}  // namespace
}  // namespace velmora
