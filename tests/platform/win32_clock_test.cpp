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

/// The clocks are read one after the other, on a machine that may be busy.
constexpr std::chrono::seconds kBetweenTwoCalls{20};

TEST(Win32Clock, TellsUniversalTimeWithoutFractions) {
    const auto before = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    const auto told = instantOf(Win32Clock().universalTime());
    // The two clocks of Windows may differ by one tick of the slower one.
    EXPECT_GE(told, before - std::chrono::seconds(1));
    EXPECT_LE(told, before + kBetweenTwoCalls);
}

TEST(Win32Clock, LocalTimeIsUniversalTimeInTheZone) {
    const Win32Clock clock;
    const auto universal = instantOf(clock.universalTime());
    const auto local = instantOf(clock.localTime());
    const auto expected = universal + std::chrono::minutes(zoneInformation().offsetMinutes);
    EXPECT_GE(local, expected);
    EXPECT_LE(local, expected + kBetweenTwoCalls);
}

TEST(Win32Clock, CountsSecondsOfTheLocalDay) {
    const Win32Clock clock;
    const DateTime time = clock.localTime();
    const double seconds = clock.secondsSinceMidnight();
    const double passed = seconds - (time.hour * 3600 + time.minute * 60 + time.second);
    EXPECT_GE(seconds, 0);
    EXPECT_LT(seconds, 86'400);
    // At midnight the count starts again.
    EXPECT_LE(passed < 0 ? passed + 86'400 : passed, kBetweenTwoCalls.count());
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
