// The wait for an answer begins when the last byte has left the line, however slow that is.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "serial/wire_time.h"
#include "support/link_rig.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using test::milliseconds;
using testing::ElementsAre;
using testing::SizeIs;

class SlowLinkTest : public testing::Test, protected test::LinkRig {
  protected:
    /// At this rate a byte takes 10 ms.
    SlowLinkTest() { port.settings = "1000,N,8,1"; }

    /// Takes the link to a state in which the line has been idle for long.
    void bringToOnAnIdleLine(LinkState state) {
        bringTo(state);
        time.advance(1s);
        forget();
    }
    /// The time that the frames sent since the last forget() take on the wire.
    milliseconds wireTimeOfSent() const {
        std::size_t bytes = 0;
        for (const std::string& wire : port.sent) {
            bytes += wire.size();
        }
        return 10ms * static_cast<int>(bytes);
    }
};

TEST_F(SlowLinkTest, TheSoonestFrameIsTheBytesThatItLacksButOne) {
    bringToOnAnIdleLine(LinkState::Ready);
    EXPECT_EQ(plp.soonestFrame(), 60ms);
    const std::string bytes = frame(FrameType::Data, 2, "x");
    arrive(bytes.substr(0, 5));
    EXPECT_EQ(plp.soonestFrame(), 30ms);
    arrive(bytes.substr(5));
    EXPECT_EQ(plp.soonestFrame(), 60ms);
}

TEST_F(SlowLinkTest, ALongFrameIsNotRepeatedBeforeItCanHaveBeenAnswered) {
    bringToOnAnIdleLine(LinkState::Ready);
    plp.PLP_Send(FrameType::Data, std::string(255, 'x'));
    const milliseconds wireTime = wireTimeOfSent();
    EXPECT_GT(wireTime, 2500ms);
    time.advance(wireTime + 499ms);
    EXPECT_THAT(sent(), SizeIs(1));
    time.advance(1ms);
    EXPECT_THAT(sent(), SizeIs(2));
}

TEST_F(SlowLinkTest, BytesThatAreDoubledOnTheLineCountTwice) {
    bringToOnAnIdleLine(LinkState::Ready);
    plp.PLP_Send(FrameType::Data, std::string(255, kDle));
    EXPECT_GT(wireTimeOfSent(), 5100ms);
    time.advance(5500ms);
    EXPECT_THAT(sent(), SizeIs(1));
    arrive(FrameType::Ack, 1);
    EXPECT_EQ(plp.linkState(), LinkState::Ready);
    EXPECT_THAT(port.sent, SizeIs(1));
}

TEST_F(SlowLinkTest, AReplyWaitsBehindTheAcknowledgementThatIsStillLeaving) {
    bringToOnAnIdleLine(LinkState::Ready);
    services.onEvent = [this](std::int32_t& code, std::string&) {
        if (code == PLP_EV_DATA) {
            plp.PLP_Send(FrameType::Data, std::string(100, 'x'));
        }
    };
    arrive(FrameType::Data, 2, "request");
    EXPECT_THAT(sent(), ElementsAre("ACK 2", testing::StartsWith("DATA 1 xxx")));
    EXPECT_EQ(plpTimer.remaining(), 500ms + wireTimeOfSent());
}

TEST_F(SlowLinkTest, EachResendWaitsForItsOwnBytes) {
    bringToOnAnIdleLine(LinkState::Ready);
    plp.PLP_Send(FrameType::Data, std::string(100, 'x'));
    const milliseconds each = 500ms + wireTimeOfSent();
    for (int resends = 1; resends <= kMaxResends; ++resends) {
        time.advance(each - 1ms);
        EXPECT_THAT(sent(), SizeIs(resends));
        time.advance(1ms);
        EXPECT_THAT(sent(), SizeIs(resends + 1));
    }
    time.advance(each);
    EXPECT_THAT(window.errors, ElementsAre("Too many send errors!"));
}

TEST_F(SlowLinkTest, ALinkRequestIsRepeated500MsAfterItHasLeft) {
    start();
    const milliseconds each = 500ms + wireTimeOfSent();
    time.advance(each - 1ms);
    EXPECT_THAT(sent(), ElementsAre("CONNECT"));
    time.advance(1ms);
    EXPECT_THAT(sent(), ElementsAre("CONNECT", "CONNECT"));
    time.advance(each - 1ms);
    EXPECT_THAT(sent(), SizeIs(2));
    time.advance(1ms);
    EXPECT_THAT(sent(), SizeIs(3));
}

TEST_F(SlowLinkTest, BytesThatComeInMeanwhileDoNotShortenTheWait) {
    bringToOnAnIdleLine(LinkState::Ready);
    plp.PLP_Send(FrameType::Data, std::string(200, 'x'));
    const milliseconds wireTime = wireTimeOfSent();
    time.advance(100ms);
    arrive("noise");
    EXPECT_EQ(plpTimer.remaining(), wireTime - 100ms + 500ms);
    time.advance(wireTime - 100ms + 499ms);
    EXPECT_THAT(sent(), SizeIs(1));
}

TEST_F(SlowLinkTest, OnceEverythingHasLeftBytesThatComeInStartTheUsualWait) {
    bringToOnAnIdleLine(LinkState::Ready);
    plp.PLP_Send(FrameType::Data, "x");
    time.advance(wireTimeOfSent() + 400ms);
    arrive("noise");
    EXPECT_EQ(plpTimer.remaining(), 500ms);
}

TEST_F(SlowLinkTest, OnALineFasterThanItsSettingsTheWaitDoesNotGrow) {
    bringToOnAnIdleLine(LinkState::Ready);
    for (std::uint8_t sequence = 1; sequence < 5; ++sequence) {
        plp.PLP_Send(FrameType::Data, std::string(100, 'x'));
        arrive(FrameType::Ack, sequence);
    }
    forget();
    plp.PLP_Send(FrameType::Data, "x");
    EXPECT_EQ(plpTimer.remaining(), 500ms + wireTimeOfSent());
}

TEST_F(SlowLinkTest, ACopyThatFollowsTheAcknowledgedFrameIsStillLeaving) {
    bringToOnAnIdleLine(LinkState::Ready);
    plp.PLP_Send(FrameType::Data, std::string(100, 'x'));
    const milliseconds copy = wireTimeOfSent();
    time.advance(copy + 500ms);
    ASSERT_THAT(sent(), SizeIs(2));
    arrive(FrameType::Ack, 1);
    forget();
    plp.PLP_Send(FrameType::Data, "x");
    EXPECT_EQ(plpTimer.remaining(), 500ms + copy + wireTimeOfSent());
}

TEST_F(SlowLinkTest, APortWhoseWritesLastUntilTheBytesHaveLeftIsWaitedFor500Ms) {
    bringToOnAnIdleLine(LinkState::Ready);
    port.onSend = [this](const std::string& wire) { time.advance(10ms * static_cast<int>(wire.size())); };
    plp.PLP_Send(FrameType::Data, std::string(100, 'x'));
    EXPECT_EQ(plpTimer.remaining(), 500ms);
}

TEST_F(SlowLinkTest, AWriteThatLastsLongerThanTheBytesTakeIsNotRepeatedInside) {
    bringToOnAnIdleLine(LinkState::Ready);
    port.onSend = [this](const std::string&) {
        port.onSend = nullptr;
        time.advance(10s);
    };
    plp.PLP_Send(FrameType::Data, "x");
    EXPECT_THAT(sent(), SizeIs(1));
    EXPECT_EQ(plpTimer.remaining(), 500ms);
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(SlowLinkTest, ANewStartFindsAnIdleLine) {
    bringToOnAnIdleLine(LinkState::Ready);
    plp.PLP_Send(FrameType::Data, std::string(255, 'x'));
    stop();
    forget();
    port.settings = "9600,N,8,1";
    start();
    EXPECT_EQ(plpTimer.remaining(), 511ms) << "ten bytes at 9600 baud";
}

TEST_F(SlowLinkTest, ParityAndStopBitsCount) {
    port.settings = "1000,E,8,2";
    start();
    EXPECT_EQ(plpTimer.remaining(), 500ms + 10 * 12ms);
}

TEST_F(SlowLinkTest, SettingsThatOnlyTheSystemUnderstandsLeaveTheWaitAsItIs) {
    port.settings = "9600,N,8,1,P";
    start();
    EXPECT_EQ(plpTimer.remaining(), 500ms);
}

}  // namespace
}  // namespace velmora
