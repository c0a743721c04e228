#include "capture/capture_recorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "capture/capture_cases.h"
#include "support/fake_timers.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using namespace std::chrono_literals;

class CaptureRecorderTest : public testing::Test {
  protected:
    CaptureRecorderTest() {
        time.midnightOffset = 40'000.25;
        recorder.emplace(time, target);
        recorder->portOpened(test::usualPort());
    }
    std::chrono::nanoseconds timeOf(std::size_t packet) const {
        return target.capture.packets.at(packet).time;
    }

    test::FakeTime time;
    test::RecordingTarget target;
    std::optional<CaptureRecorder> recorder;
};

TEST_F(CaptureRecorderTest, TimesAreUniversalWithTheirFractionOfASecond) {
    recorder->sent("a");
    time.universal = {2001, 1, 1, 0, 0, 0};  // somebody sets the clock
    time.advance(1500ms);
    recorder->sent("b");
    // 2026-03-28 13:05:09.25
    EXPECT_EQ(timeOf(0), 1'774'703'109'250ms);
    EXPECT_EQ(timeOf(1), 1'774'703'110'750ms);
}

/// A clock that reaches the next second while it is asked.
class TickingClock : public test::FakeTime {
  public:
    DateTime universalTime() const override {
        DateTime now = universal;
        now.second = asked++ == 0 ? 9 : 10;
        return now;
    }
    mutable int asked = 0;
};

TEST_F(CaptureRecorderTest, ASecondThatEndsMeanwhileIsAskedForAgain) {
    TickingClock ticking;
    CaptureRecorder other(ticking, target);
    other.portOpened(test::usualPort());
    other.sent("a");
    EXPECT_EQ(timeOf(0), 1'774'703'110s);
}

TEST_F(CaptureRecorderTest, AFrameThatTricklesInIsOnePacketFromItsFirstByteOn) {
    const std::string frame = test::dataFrame(2, "hello");
    for (const char byte : frame) {
        recorder->received({&byte, 1});
        time.advance(1ms);
    }
    EXPECT_THAT(target.lines(), ElementsAre("recv " + frame));
    EXPECT_EQ(timeOf(0), 1'774'703'109'250ms);
}

TEST_F(CaptureRecorderTest, FramesThatComeTogetherStayTogether) {
    recorder->received(test::ack(1) + test::dataFrame(2, "x") + "\x16");
    EXPECT_THAT(target.lines(), ElementsAre("recv " + test::ack(1) + test::dataFrame(2, "x") + "\x16"));
}

TEST_F(CaptureRecorderTest, ARunEndsWhenBytesGoTheOtherWay) {
    recorder->received("abc");
    recorder->sent("A");
    recorder->received("d");
    recorder->note("n");
    EXPECT_THAT(target.lines(), ElementsAre("recv abc", "send A", "recv d", "note n"));
}

TEST_F(CaptureRecorderTest, ARunEndsWithAPause) {
    recorder->received("a");
    time.advance(CaptureRecorder::kPause);
    recorder->received("b");
    time.advance(CaptureRecorder::kPause + 1ms);
    recorder->received("c");
    recorder.reset();
    EXPECT_THAT(target.lines(), ElementsAre("recv ab", "recv c"));
}

TEST_F(CaptureRecorderTest, BytesThatMakeNoFrameAreHandedOverAsWell) {
    const std::string noise(1000, '?');
    for (int i = 0; i < 5; ++i) {
        recorder->received(noise);
    }
    ASSERT_EQ(target.capture.packets.size(), 1U);
    EXPECT_EQ(target.capture.packets[0].bytes.size(), 4000U);
    EXPECT_EQ(target.capture.packets[0].direction, CaptureDirection::Received);
}

TEST_F(CaptureRecorderTest, AnotherPortBeginsWithoutWhatIsLeftOfTheLast) {
    recorder->received("\x16\x10\x02");
    recorder->portOpened({"COM7", "", 0});
    recorder->received(test::ack(0));
    EXPECT_EQ(target.capture.ports.size(), 2U);
    EXPECT_THAT(target.lines(), ElementsAre("recv \x16\x10\x02", "recv " + test::ack(0)));
    EXPECT_EQ(target.capture.packets[0].port, 0U);
}

TEST_F(CaptureRecorderTest, WhatComesBeforeAnyPortIsDropped) {
    CaptureRecorder early(time, target);
    early.note("n");
    early.sent("s");
    EXPECT_TRUE(target.capture.packets.empty());
}

}  // namespace
}  // namespace velmora
