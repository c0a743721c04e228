#include "capture/capture_statistics.h"

#include <gtest/gtest.h>

#include "capture/capture_cases.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using test::CaptureScript;

CaptureStatistics countOf(const CaptureScript& script) {
    return statisticsOf(script.capture, eventsOf(script.capture));
}

TEST(CaptureStatistics, NothingIsNothing) {
    const CaptureStatistics statistics = statisticsOf({}, {});
    EXPECT_EQ(statistics.length, 0ns);
    EXPECT_EQ(statistics.sent.roundTrips.mean(), 0ns);
}

TEST(CaptureStatistics, CountsFramesRepeatsBadChecksAndStrayBytes) {
    std::string damaged = test::ack(1);
    damaged.back() ^= 1;
    CaptureScript script;
    script.sent(0, test::dataFrame(1, "a")).sent(500, test::dataFrame(1, "a")).note(600, "hm");
    script.received(700, "??" + damaged).received(800, test::ack(1));
    const CaptureStatistics statistics = countOf(script);
    EXPECT_EQ(statistics.length, 800ms);
    EXPECT_EQ(statistics.sent.frames, 2U);
    EXPECT_EQ(statistics.sent.repeats, 1U);
    EXPECT_EQ(statistics.sent.badChecks, 0U);
    EXPECT_EQ(statistics.sent.bytes, 20U);
    EXPECT_EQ(statistics.received.frames, 2U);
    EXPECT_EQ(statistics.received.badChecks, 1U);
    EXPECT_EQ(statistics.received.stray, 2U);
    EXPECT_EQ(statistics.received.bytes, 20U);
}

TEST(CaptureStatistics, TimesDataToItsAcknowledgementInBothDirections) {
    CaptureScript script;
    script.received(0, test::dataFrame(1, "a")).sent(3, test::ack(1)).sent(4, test::dataFrame(1, "b"));
    script.received(14, test::ack(1)).sent(20, test::dataFrame(2, "b")).received(50, test::ack(2));
    const CaptureStatistics statistics = countOf(script);
    EXPECT_EQ(statistics.received.roundTrips.count, 1U);
    EXPECT_EQ(statistics.received.roundTrips.longest, 3ms);
    EXPECT_EQ(statistics.sent.roundTrips.count, 2U);
    EXPECT_EQ(statistics.sent.roundTrips.shortest, 10ms);
    EXPECT_EQ(statistics.sent.roundTrips.longest, 30ms);
    EXPECT_EQ(statistics.sent.roundTrips.mean(), 20ms);
}

TEST(CaptureStatistics, OtherAcknowledgementsAndThoseOfRepeatsTimeNothing) {
    CaptureScript script;
    script.sent(0, test::dataFrame(1, "a")).received(1, test::ack(0)).received(2, test::dataFrame(2, "?"));
    script.sent(500, test::dataFrame(1, "a")).received(501, test::ack(1));
    script.sent(600, test::dataFrame(2, "a")).received(601, test::frame(FrameType::Connect, 0));
    script.received(602, test::ack(2)).received(603, "\x16\x10\x02\x01\x20\x10\x03\x01\x38");
    EXPECT_EQ(countOf(script).sent.roundTrips.count, 0U);
    EXPECT_EQ(countOf(script).received.roundTrips.count, 0U);
}

TEST(CaptureStatistics, AClockThatWasSetBackGivesNoTimesBelowZero) {
    CaptureScript script;
    script.sent(100, test::dataFrame(1, "a")).received(50, test::ack(1));
    EXPECT_EQ(countOf(script).length, 0ns);
    EXPECT_EQ(countOf(script).sent.roundTrips.longest, 0ns);
}

TEST(CaptureStatistics, BytesKeepTheLineBusyAtItsRate) {
    CaptureScript script;
    script.sent(0, std::string(96, '?')).received(1000, "?");
    EXPECT_EQ(countOf(script).sent.busy, 96 * 1'041'666ns);
    script.capture.ports[0].settings = "not known";
    EXPECT_EQ(countOf(script).sent.busy, 0ns);
}

TEST(CaptureStatistics, AShareIsBetweenNothingAndAll) {
    EXPECT_EQ(percentOf(100ms, 1000ms), 10);
    EXPECT_EQ(percentOf(100ms, 50ms), 100);
    EXPECT_EQ(percentOf(100ms, 0ms), 0);
}

}  // namespace
}  // namespace velmora
