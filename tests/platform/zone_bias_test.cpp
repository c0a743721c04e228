#include "platform/zone_bias.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/run_time_errors.h"

namespace velmora {
namespace {

using test::errorOf;

ZoneInformation standard(int offset) {
    return {offset, false};
}
ZoneInformation daylight(int offset) {
    return {offset, true};
}

TEST(ZoneBias, UniversalTimeHasNoOffset) {
    EXPECT_EQ(zoneFromBias({}), standard(0));
}

TEST(ZoneBias, WestOfGreenwichIsNegative) {
    EXPECT_EQ(zoneFromBias({300, 0, -60, false}), standard(-300));
}

TEST(ZoneBias, EastOfGreenwichIsPositiveAndHalfHoursCount) {
    EXPECT_EQ(zoneFromBias({-330, 0, 0, false}), standard(330));
    EXPECT_EQ(zoneFromBias({-345, 0, -60, false}), standard(345));
}

TEST(ZoneBias, DaylightSavingTimeAddsItsOwnBiasOnly) {
    EXPECT_EQ(zoneFromBias({-60, 0, -60, true}), daylight(120));
    EXPECT_EQ(zoneFromBias({300, 0, -60, true}), daylight(-240));
    EXPECT_EQ(zoneFromBias({-600, 5, -30, true}), daylight(630));
}

TEST(ZoneBias, AStandardBiasCountsOutsideOfIt) {
    EXPECT_EQ(zoneFromBias({-60, 15, -60, false}), standard(45));
    EXPECT_EQ(zoneFromBias({0, -60, -120, false}), standard(60));
}

TEST(ZoneBias, TheOffsetIsA16BitNumber) {
    EXPECT_EQ(zoneFromBias({-32'767, 0, 0, false}), standard(32'767));
    EXPECT_EQ(zoneFromBias({32'768, 0, 0, false}), standard(-32'768));
    EXPECT_EQ(errorOf([] { zoneFromBias({-32'768, 0, 0, false}); }), 6);
    EXPECT_EQ(errorOf([] { zoneFromBias({32'769, 0, 0, false}); }), 6);
    EXPECT_EQ(errorOf([] { zoneFromBias({-32'767, 0, -1, true}); }), 6);
}

TEST(ZoneBias, ASumBeyond32BitsIsAnOverflowToo) {
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(errorOf([] { zoneFromBias({kMost, kMost, 0, false}); }), 6);
    EXPECT_EQ(errorOf([] { zoneFromBias({kLeast, 0, kLeast, true}); }), 6);
}

}  // namespace
}  // namespace velmora
