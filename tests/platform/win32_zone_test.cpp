#include <gtest/gtest.h>
#include <windows.h>

#include "platform/zone.h"

namespace velmora {
namespace {

// The machine's zone is not the test's to set, but the system's two clocks tell the offset as well.
TEST(Win32Zone, TheOffsetIsTheDifferenceOfTheTwoClocks) {
    FILETIME universal{};
    FILETIME local{};
    GetSystemTimeAsFileTime(&universal);
    ASSERT_NE(FileTimeToLocalFileTime(&universal, &local), 0);
    const auto ticks = [](const FILETIME& time) {
        return static_cast<long long>((static_cast<unsigned long long>(time.dwHighDateTime) << 32) |
                                      time.dwLowDateTime);
    };
    constexpr long long kTicksPerMinute = 600'000'000;
    EXPECT_EQ(zoneInformation().offsetMinutes, (ticks(local) - ticks(universal)) / kTicksPerMinute);
}

TEST(Win32Zone, DaylightSavingIsTheSystemsWord) {
    TIME_ZONE_INFORMATION zone{};
    EXPECT_EQ(zoneInformation().daylight, GetTimeZoneInformation(&zone) == TIME_ZONE_ID_DAYLIGHT);
}

}  // namespace
}  // namespace velmora
