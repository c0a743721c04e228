#include "serial/wire_time.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono_literals;

constexpr WireTime::Time kNow = 5s;

LineSettings settingsOf(const char* modeString) {
    return parseModeString(modeString).value();
}

struct ByteOf {
    const char* name;
    const char* settings;
    std::chrono::nanoseconds expected;
};

class ByteTimeTest : public testing::TestWithParam<ByteOf> {};

TEST_P(ByteTimeTest, CountsEveryBitOfTheByte) {
    EXPECT_EQ(byteTime(settingsOf(GetParam().settings)), GetParam().expected);
}

constexpr ByteOf kBytes[] = {
    {"TenBits", "1000,N,8,1", 10ms},
    {"Parity", "1000,E,8,1", 11ms},
    {"MarkAsParity", "1000,M,8,1", 11ms},
    {"TwoStopBits", "1000,N,8,2", 11ms},
    {"SevenDataBits", "1000,O,7,2", 11ms},
    {"OneAndAHalfStopBits", "1000,N,5,1.5", 7'500us},
    {"AtARateThatDoesNotDivide", "9600,N,8,1", 1'041'666ns},
    {"AtTheSlowestRate", "1,N,8,1", 10s},
    {"AtTheFastestRate", "4294967295,N,8,1", 2ns},
};

INSTANTIATE_TEST_SUITE_P(Settings, ByteTimeTest, testing::ValuesIn(kBytes),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(WireTimeTest, NothingIsLeftOfAnIdleLine) {
    const WireTime wire(settingsOf("1200,N,8,1"));
    EXPECT_EQ(wire.left(0s), 0s);
    EXPECT_EQ(wire.left(kNow), 0s);
}

TEST(WireTimeTest, BytesLeaveAtTheRateOfTheLine) {
    WireTime wire(settingsOf("1000,N,8,1"));
    wire.handOver(100, kNow);
    EXPECT_EQ(wire.left(kNow), 1s);
    EXPECT_EQ(wire.left(kNow + 600ms), 400ms);
    EXPECT_EQ(wire.left(kNow + 1s), 0s);
    EXPECT_EQ(wire.left(kNow + 1h), 0s);
}

TEST(WireTimeTest, BytesWaitBehindThoseThatAreStillOnTheirWay) {
    WireTime wire(settingsOf("1000,N,8,1"));
    wire.handOver(100, kNow);
    wire.handOver(50, kNow + 700ms);
    EXPECT_EQ(wire.left(kNow + 700ms), 800ms);
}

TEST(WireTimeTest, BytesHandedToAnIdleLineLeaveAtOnce) {
    WireTime wire(settingsOf("1000,N,8,1"));
    wire.handOver(100, kNow);
    wire.handOver(50, kNow + 3s);
    EXPECT_EQ(wire.left(kNow + 3s), 500ms);
}

TEST(WireTimeTest, AnAnswerShowsThatEverythingHasLeft) {
    WireTime wire(settingsOf("1000,N,8,1"));
    wire.handOver(100, kNow);
    wire.allOut(kNow + 1ms);
    EXPECT_EQ(wire.left(kNow + 1ms), 0s);
    wire.handOver(100, kNow + 2ms);
    EXPECT_EQ(wire.left(kNow + 2ms), 1s);
}

TEST(WireTimeTest, AnAnswerDoesNotMakeAnIdleLineBusy) {
    WireTime wire(settingsOf("1000,N,8,1"));
    wire.handOver(1, kNow);
    wire.allOut(kNow + 5s);
    EXPECT_EQ(wire.left(kNow + 1s), 0s);
}

TEST(WireTimeTest, WhatIsLeftIsNeverRoundedDown) {
    WireTime wire(settingsOf("9600,N,8,1"));
    wire.handOver(1, kNow);
    EXPECT_EQ(wire.left(kNow), 1'042us);
}

TEST(WireTimeTest, ManySmallPortionsTakeAsLongAsOneLargeOne) {
    WireTime portions(settingsOf("115200,N,8,1"));
    for (int i = 0; i < 10'000; ++i) {
        portions.handOver(1, kNow);
    }
    WireTime whole(settingsOf("115200,N,8,1"));
    whole.handOver(10'000, kNow);
    EXPECT_EQ(portions.left(kNow), whole.left(kNow));
}

TEST(WireTimeTest, ALineWithoutARateTakesNoTime) {
    WireTime wire;
    wire.handOver(1'000'000, kNow);
    EXPECT_EQ(wire.left(kNow), 0s);
}

}  // namespace
}  // namespace velmora
