#include <gtest/gtest.h>

#include <filesystem>

#include "platform/posix/zone_at.h"
#include "support/zone_setting.h"

namespace velmora {

void PrintTo(const ZoneInformation& zone, std::ostream* out) {
    *out << zone.offsetMinutes << (zone.daylight ? " daylight" : " standard");
}

namespace {

using test::utc;
using test::ZoneSetting;

constexpr std::chrono::seconds kSecond{1};

ZoneInformation standard(int offset) {
    return {offset, false};
}
ZoneInformation daylight(int offset) {
    return {offset, true};
}

// Zones written out in TZ, which need no data base.

TEST(Zone, UniversalTimeHasNoOffset) {
    const ZoneSetting zone("UTC0");
    EXPECT_EQ(zoneInformation(utc(2026, 7, 1)), standard(0));
}

TEST(Zone, WestOfGreenwichIsNegative) {
    const ZoneSetting zone("EST5");
    EXPECT_EQ(zoneInformation(utc(2026, 7, 1)), standard(-300));
}

TEST(Zone, HalfHoursCount) {
    EXPECT_EQ((ZoneSetting("IST-5:30"), zoneInformation(utc(2026, 7, 1))), standard(330));
    EXPECT_EQ((ZoneSetting("NPT-5:45"), zoneInformation(utc(2026, 7, 1))), standard(345));
    EXPECT_EQ((ZoneSetting("NST3:30"), zoneInformation(utc(2026, 7, 1))), standard(-210));
}

TEST(Zone, ChangesAtTheSecondOfTheChange) {
    const ZoneSetting zone("CET-1CEST,M3.5.0,M10.5.0/3");
    const auto spring = utc(2026, 3, 29, 1);
    EXPECT_EQ(zoneInformation(spring - kSecond), standard(60));
    EXPECT_EQ(zoneInformation(spring), daylight(120));
    EXPECT_EQ(zoneInformation(spring + kSecond), daylight(120));
    const auto autumn = utc(2026, 10, 25, 1);
    EXPECT_EQ(zoneInformation(autumn - kSecond), daylight(120));
    EXPECT_EQ(zoneInformation(autumn), standard(60));
}

TEST(Zone, FractionsOfASecondDoNotRunAhead) {
    const ZoneSetting zone("CET-1CEST,M3.5.0,M10.5.0/3");
    EXPECT_EQ(zoneInformation(utc(2026, 3, 29, 1) - std::chrono::milliseconds(1)), standard(60));
}

TEST(Zone, TheSouthHasItsSummerAroundNewYear) {
    const ZoneSetting zone("AEST-10AEDT,M10.1.0,M4.1.0/3");
    EXPECT_EQ(zoneInformation(utc(2026, 1, 1)), daylight(660));
    EXPECT_EQ(zoneInformation(utc(2026, 7, 1)), standard(600));
}

TEST(Zone, DaylightSavingOfHalfAnHour) {
    const ZoneSetting zone("LHST-10:30LHDT-11,M10.1.0,M4.1.0");
    EXPECT_EQ(zoneInformation(utc(2026, 1, 1)), daylight(660));
    EXPECT_EQ(zoneInformation(utc(2026, 7, 1)), standard(630));
}

TEST(Zone, NegativeDaylightSavingStillMarksTheSummer) {
    const ZoneSetting zone("IST-1GMT0,M10.5.0,M3.5.0/1");
    const auto spring = utc(2026, 3, 29, 1);
    EXPECT_EQ(zoneInformation(spring - kSecond), standard(0));
    EXPECT_EQ(zoneInformation(spring), daylight(60));
    EXPECT_EQ(zoneInformation(utc(2026, 12, 31, 23, 59, 59)), standard(0));
}

TEST(Zone, FollowsAChangeOfTheVariable) {
    {
        const ZoneSetting zone("EST5");
        EXPECT_EQ(zoneInformation(utc(2026, 1, 1)).offsetMinutes, -300);
    }
    const ZoneSetting zone("JST-9");
    EXPECT_EQ(zoneInformation(utc(2026, 1, 1)).offsetMinutes, 540);
}

// Changes of rules, which only the data base knows.

class ZoneHistory : public testing::Test {
  protected:
    void SetUp() override {
        if (!std::filesystem::exists("/usr/share/zoneinfo/Europe/Dublin")) {
            GTEST_SKIP() << "the time zone data base (package tzdata) is not installed";
        }
    }
};

TEST_F(ZoneHistory, Dublin) {
    const ZoneSetting zone("Europe/Dublin");
    EXPECT_EQ(zoneInformation(utc(2026, 1, 15)), standard(0));
    EXPECT_EQ(zoneInformation(utc(2026, 7, 15)), daylight(60));
}

TEST_F(ZoneHistory, MoscowGaveUpSummerTimeTwice) {
    const ZoneSetting zone("Europe/Moscow");
    EXPECT_EQ(zoneInformation(utc(2010, 7, 1)), daylight(240));
    EXPECT_EQ(zoneInformation(utc(2010, 12, 1)), standard(180));
    EXPECT_EQ(zoneInformation(utc(2011, 7, 1)), standard(240)) << "summer time made standard";
    EXPECT_EQ(zoneInformation(utc(2014, 10, 25, 21, 59, 59)), standard(240));
    EXPECT_EQ(zoneInformation(utc(2014, 10, 25, 22)), standard(180)) << "and taken back";
}

TEST_F(ZoneHistory, IstanbulStayedInSummer) {
    const ZoneSetting zone("Europe/Istanbul");
    EXPECT_EQ(zoneInformation(utc(2016, 8, 1)), daylight(180));
    EXPECT_EQ(zoneInformation(utc(2017, 1, 1)), standard(180));
}

TEST_F(ZoneHistory, PyongyangMovedByHalfAnHour) {
    const ZoneSetting zone("Asia/Pyongyang");
    EXPECT_EQ(zoneInformation(utc(2018, 5, 4, 14, 59, 59)), standard(510));
    EXPECT_EQ(zoneInformation(utc(2018, 5, 4, 15)), standard(540));
}

TEST_F(ZoneHistory, ApiaSkippedADay) {
    const ZoneSetting zone("Pacific/Apia");
    EXPECT_EQ(zoneInformation(utc(2011, 12, 30, 9, 59, 59)), daylight(-600));
    EXPECT_EQ(zoneInformation(utc(2011, 12, 30, 10)), daylight(840));
}

}  // namespace
}  // namespace velmora
