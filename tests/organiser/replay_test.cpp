#include "organiser/replay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <utility>

#include "capture/capture_cases.h"
#include "fake_line.h"
#include "organiser/frame_text.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using test::ack;
using test::dataFrame;
using testing::ElementsAre;

std::string connect() {
    return test::frame(FrameType::Connect, 0);
}
std::string discon() {
    return test::frame(FrameType::Discon, 0, "\0"s);
}

/// A conversation about the time, as the server saw it.
test::CaptureScript recorded() {
    test::CaptureScript script;
    script.sent(0, connect()).received(20, connect()).sent(21, ack(0)).note(22, "state: ready");
    script.received(30, dataFrame(1, "TIME")).sent(31, ack(1));
    script.sent(32, dataFrame(1, "2026-11-22 12:00:00")).received(60, ack(1)).received(61, discon());
    script.sent(62, connect());
    return script;
}

/// The server's end is a script: each write takes the next answer.
class ReplayTest : public testing::Test {
  protected:
    ReplayTest() {
        line.arrive(connect());
        line.onWrite = [this](const std::string&) {
            if (!answers.empty()) {
                line.arrive(answers.front());
                answers.pop_front();
            }
        };
        answers = {ack(0), ack(1) + dataFrame(1, "2026-11-22 12:00:00"), "", connect()};
    }
    ReplayResult play(const test::CaptureScript& script) { return replay(script.capture, line, trace); }
    std::vector<std::string> written() const {
        std::vector<std::string> texts;
        for (const auto& sent : line.sent) {
            texts.push_back(frameText(sent.bytes));
        }
        return texts;
    }

    test::FakeLine line;
    std::deque<std::string> answers;
    OrganiserLink::FrameTrace trace;
};

TEST_F(ReplayTest, AServerThatAnswersAsItDidAgrees) {
    const ReplayResult result = play(recorded());
    EXPECT_FALSE(result.parting.has_value());
    EXPECT_EQ(result.agreed, 5U);
    EXPECT_THAT(written(), ElementsAre("CONNECT", "DATA 1 len=4 TIME", "ACK 1", "DISCON 00"));
}

TEST_F(ReplayTest, AnotherAnswerPartsAtItsFrame) {
    answers[1] = ack(1) + test::frame(FrameType::Discon, 0, "\xBE");
    const ReplayResult result = play(recorded());
    ASSERT_TRUE(result.parting.has_value());
    EXPECT_EQ(result.agreed, 3U);
    EXPECT_EQ(result.parting->frame, 4U);
    EXPECT_EQ(result.parting->time, 32ms);
    EXPECT_EQ(frameText(result.parting->then), "DATA 1 len=19 2026-11-22 12:00:00");
    EXPECT_EQ(frameText(result.parting->now.value()), "DISCON BE");
    EXPECT_EQ(written().back(), "DISCON 00");
}

TEST_F(ReplayTest, ASilentServerPartsAfterItsTime) {
    answers[1] = ack(1);
    const ReplayResult result = play(recorded());
    ASSERT_TRUE(result.parting.has_value());
    EXPECT_EQ(result.parting->frame, 4U);
    EXPECT_EQ(result.parting->now, std::nullopt);
    EXPECT_EQ(line.now(), kReplayLimit);
}

TEST_F(ReplayTest, OfAClockOnlyTheLengthCounts) {
    answers[1] = ack(1) + dataFrame(1, "1999-01-01 00:00:00");
    EXPECT_FALSE(play(recorded()).parting.has_value());
}

TEST_F(ReplayTest, AClockWithALongerAnswerParts) {
    answers[1] = ack(1) + dataFrame(1, "1999-01-01 00:00:00 *");
    EXPECT_TRUE(play(recorded()).parting.has_value());
}

TEST_F(ReplayTest, AClockThatNumbersItsAnswerOtherwiseParts) {
    answers[1] = ack(1) + dataFrame(2, "2026-11-22 12:00:00");
    EXPECT_TRUE(play(recorded()).parting.has_value());
}

TEST_F(ReplayTest, OtherDataMustBeTheSame) {
    test::CaptureScript script;
    script.sent(0, connect()).received(1, dataFrame(1, "TIMES")).sent(2, dataFrame(1, "a"));
    answers = {dataFrame(1, "b")};
    EXPECT_EQ(play(script).parting->frame, 2U);
}

TEST_F(ReplayTest, RepeatsOfTheServerDoNotCountThenOrNow) {
    test::CaptureScript script;
    script.sent(0, connect()).sent(500, connect()).sent(1000, connect()).received(1001, connect());
    script.sent(1002, ack(0)).received(1003, dataFrame(1, "FILE")).sent(1004, ack(1));
    script.sent(1005, dataFrame(1, "")).sent(1505, dataFrame(1, "")).received(1506, ack(1));
    answers = {connect() + ack(0) + ack(0), ack(1) + dataFrame(1, "") + dataFrame(1, ""), ""};
    const ReplayResult result = play(script);
    EXPECT_FALSE(result.parting.has_value());
    EXPECT_EQ(result.agreed, 4U);
}

TEST_F(ReplayTest, ARepeatThatWasCalledForIsWaitedFor) {
    test::CaptureScript script;
    script.sent(0, connect()).received(1, discon() + connect()).sent(2, connect()).received(3, ack(0));
    answers = {""};
    line.arrive(connect(), 400ms);
    EXPECT_FALSE(play(script).parting.has_value());
    EXPECT_EQ(line.sent.at(1).at, 400ms);
}

TEST_F(ReplayTest, ARepeatThatWasCalledForAndDoesNotComeParts) {
    test::CaptureScript script;
    script.sent(0, connect()).received(1, discon()).sent(2, connect());
    answers.clear();
    EXPECT_EQ(play(script).parting->now, std::nullopt);
}

TEST_F(ReplayTest, DamagedFramesAndStrayBytesAreSentAsTheyWere) {
    std::string damaged = ack(3);
    damaged.back() ^= 1;
    test::CaptureScript script;
    script.sent(0, connect()).received(1, "??").received(2, damaged);
    answers.clear();
    EXPECT_FALSE(play(script).parting.has_value());
    ASSERT_GE(line.sent.size(), 2U);
    EXPECT_EQ(line.sent[0].bytes, "??");
    EXPECT_EQ(line.sent[1].bytes, damaged);
}

TEST_F(ReplayTest, ALinkThatTheRecordingLeftUpIsDropped) {
    test::CaptureScript script;
    script.sent(0, connect()).received(1, connect()).sent(2, ack(0));
    EXPECT_FALSE(play(script).parting.has_value());
    EXPECT_THAT(written(), ElementsAre("CONNECT", "DISCON 00"));
}

TEST_F(ReplayTest, TellsEachFrame) {
    std::vector<std::string> frames;
    trace = [&frames](FrameDirection direction, std::string_view frame) {
        frames.push_back((direction == FrameDirection::Sent ? "send " : "recv ") + frameText(frame));
    };
    test::CaptureScript script;
    script.sent(0, connect()).received(1, connect()).sent(2, ack(0)).received(3, discon());
    play(script);
    EXPECT_THAT(frames, ElementsAre("recv CONNECT", "send CONNECT", "recv ACK 0", "send DISCON 00"));
}

TEST_F(ReplayTest, AnEmptyCaptureAgrees) {
    EXPECT_FALSE(play({}).parting.has_value());
    EXPECT_TRUE(line.sent.empty());
}

TEST_F(ReplayTest, ALineThatIsGoneIsAnError) {
    line.gone = true;
    EXPECT_THROW(play(recorded()), LineError);
}

}  // namespace
}  // namespace velmora
