#include "platform/win32/win32_clock.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/zone.h"

namespace velmora {
namespace {

std::chrono::sys_seconds instantOf(const DateTime& time) {
    using namespace std::chrono;
    return sys_days(year(time.year) / time.month / time.day) + hours(time.hour) + minutes(time.minute) +
           seconds(time.second);
}

// The clocks are read one after the other, on a machine that may be busy: what is looked at lies between two
// readings of another one.

TEST(Win32Clock, TellsUniversalTimeWithoutFractions) {
    const auto now = [] {
        return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    };
    const auto before = now();
    const auto told = instantOf(Win32Clock().universalTime());
    // The two clocks of Windows may differ by one tick of the slower one.
    EXPECT_GE(told, before - std::chrono::seconds(1));
    EXPECT_LE(told, now() + std::chrono::seconds(1));
}

TEST(Win32Clock, LocalTimeIsUniversalTimeInTheZone) {
    const Win32Clock clock;
    const std::chrono::minutes offset(zoneInformation().offsetMinutes);
    const auto before = instantOf(clock.universalTime());
    const auto local = instantOf(clock.localTime());
    EXPECT_GE(local, before + offset);
    EXPECT_LE(local, instantOf(clock.universalTime()) + offset);
}

TEST(Win32Clock, CountsSecondsOfTheLocalDay) {
    const Win32Clock clock;
    const DateTime before = clock.localTime();
    const double seconds = clock.secondsSinceMidnight();
    const std::chrono::seconds between = instantOf(clock.localTime()) - instantOf(before);
    const double passed = seconds - (before.hour * 3600 + before.minute * 60 + before.second);
    EXPECT_GE(seconds, 0);
    EXPECT_LT(seconds, 86'400);
    // At midnight the count starts again.
    EXPECT_LE(passed < 0 ? passed + 86'400 : passed, static_cast<double>(between.count() + 1));
}

TEST(Win32Clock, MonotonicTimeGrows) {
    const Win32Clock clock;
    const auto first = clock.monotonic();
    auto later = clock.monotonic();
    for (int i = 0; i < 10'000'000 && later == first; ++i) {
        later = clock.monotonic();
    }
    EXPECT_GT(later, first);
}

}  // namespace
}  // namespace velmora
