#include "services/time_services.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/fake_timers.h"
#include "support/recording_sender.h"
#include "support/recording_transfers.h"
#include "support/recording_window.h"

namespace velmora {
namespace {

class FixedZone : public ZoneSource {
  public:
    std::int32_t offsetMinutes() const override { return offset; }
    bool daylight() const override { return summer; }
    std::int32_t offset = 0;
    bool summer = false;
};

TEST(TimeStampTest, HasTwoDigitsForEachPartAndFourForTheYear) {
    EXPECT_EQ(timeStamp({2010, 3, 28, 14, 5, 9}), "2010-03-28 14:05:09");
    EXPECT_EQ(timeStamp({2024, 2, 29, 23, 59, 59}), "2024-02-29 23:59:59");
    EXPECT_EQ(timeStamp({2025, 1, 1, 0, 0, 0}), "2025-01-01 00:00:00");
    EXPECT_EQ(timeStamp({101, 12, 31, 1, 2, 3}), "0101-12-31 01:02:03");
}

struct OffsetRow {
    const char* name;
    std::int32_t minutes;
    const char* text;
};

class ZoneOffsetTest : public testing::TestWithParam<OffsetRow> {};

TEST_P(ZoneOffsetTest, IsSignHoursAndMinutes) {
    test::FakeTime clock;
    FixedZone zone;
    zone.offset = GetParam().minutes;
    std::string text;
    EXPECT_FALSE(TimeServices(clock, zone).zoneInformation(text));
    EXPECT_EQ(text, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ZoneOffsetTest,
    testing::Values(OffsetRow{"West", -300, "-0500"}, OffsetRow{"Universal", 0, "+0000"},
                    OffsetRow{"HalfHour", 330, "+0530"}, OffsetRow{"QuarterHour", 345, "+0545"},
                    OffsetRow{"WestHalfHour", -210, "-0330"}, OffsetRow{"LessThanAnHourWest", -30, "-0030"},
                    OffsetRow{"FarEast", 840, "+1400"}, OffsetRow{"MoreThanADayIsATimeOfDay", 1500, "+0100"},
                    OffsetRow{"SmallestSixteenBits", -32'768, "-1808"}),
    [](const auto& row) { return row.param.name; });

TEST(ZoneInformationTest, TheFlagTellsDaylightSaving) {
    test::FakeTime clock;
    FixedZone zone;
    zone.summer = true;
    std::string text;
    EXPECT_TRUE(TimeServices(clock, zone).zoneInformation(text));
}

TEST(ZoneInformationTest, AnOffsetBeyondSixteenBitsOverflows) {
    test::FakeTime clock;
    FixedZone zone;
    zone.offset = 32'768;
    std::string text;
    EXPECT_THROW(TimeServices(clock, zone).zoneInformation(text), RunTimeError);
}

struct ReplyRow {
    const char* name;
    TimeReply reply;
    bool summer;
    const char* text;
};

class TimeServiceTest : public testing::TestWithParam<ReplyRow> {
  protected:
    TimeServiceTest() {
        clock.local = {2010, 3, 28, 14, 5, 9};
        clock.universal = {2010, 3, 28, 12, 5, 9};
        zone.offset = 120;
        zone.summer = GetParam().summer;
    }
    std::int32_t event(std::int32_t code) {
        std::string payload;
        service.handle(code, payload);
        return code;
    }
    test::FakeTime clock;
    FixedZone zone;
    test::RecordingSender sender;
    test::RecordingWindow window;
    TimeServices time{clock, zone};
    Transfers transfers{clock};
    TimeService service{sender, window, transfers, time, GetParam().reply};
};

TEST_P(TimeServiceTest, TheOpeningIsAnsweredWithTheTime) {
    EXPECT_EQ(event(kServiceOpened), kServiceOpened);
    ASSERT_EQ(sender.frames.size(), 1U);
    EXPECT_EQ(sender.frames[0], (test::RecordingSender::Frame{FrameType::Data, GetParam().text}));
    EXPECT_EQ(window.stats[StatsBytesSent], static_cast<long>(std::string(GetParam().text).size()));
}

TEST_P(TimeServiceTest, WhateverFollowsClosesWithoutAnotherReply) {
    for (const std::int32_t code : {PLP_EV_ACKED, PLP_EV_DATA, PLP_EV_RESET}) {
        EXPECT_EQ(event(code), PLP_EV_RESET);
    }
    EXPECT_TRUE(sender.frames.empty());
    EXPECT_EQ(window.stats[StatsBytesSent], 0);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TimeServiceTest,
    testing::Values(
        ReplyRow{"Time", TimeReply::Local, true, "2010-03-28 14:05:09"},
        ReplyRow{"GmtInSummer", TimeReply::Universal, true, "2010-03-28 12:05:09 *"},
        ReplyRow{"GmtInWinter", TimeReply::Universal, false, "2010-03-28 12:05:09  "},
        ReplyRow{"TimeInfoInSummer", TimeReply::LocalWithZone, true, "2010-03-28 14:05:09 +0200 *"},
        ReplyRow{"TimeInfoInWinter", TimeReply::LocalWithZone, false, "2010-03-28 14:05:09 +0200  "}),
    [](const auto& row) { return row.param.name; });

TEST_P(TimeServiceTest, TheAnswerIsToldWithTheNameOfTheService) {
    test::RecordingTransfers told;
    transfers.observe(told);
    std::int32_t code = kServiceOpened;
    std::string payload = "Time";
    service.handle(code, payload);
    EXPECT_EQ(told.running.bytes, sender.frames[0].data.size());
    EXPECT_EQ(told.lines(), std::vector<std::string>{"told TIME"});
    EXPECT_EQ(event(PLP_EV_RESET), PLP_EV_RESET);
    EXPECT_TRUE(told.ended.empty());
}

}  // namespace
}  // namespace velmora
