// A port that failed: the link says so once, leaves it alone and waits to be stopped.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/link_rig.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

class FailedPortTest : public testing::Test, protected test::LinkRig {
  protected:
    void failSends() { port.sendError = CommError(kCommFailed, "Error (5): CommWrite - gone", "Send"); }
};

TEST_F(FailedPortTest, AFailedWriteIsShownAndStopsTheServer) {
    bringTo(LinkState::Ready);
    failSends();
    EXPECT_FALSE(plp.PLP_Send(FrameType::Data, "x"));
    EXPECT_THAT(window.warnings, ElementsAre(Pair("Send error -1", "Error (5): CommWrite - gone")));
    EXPECT_THAT(window.states, ElementsAre(LinkFailed));
    EXPECT_EQ(plp.linkState(), LinkState::WaitAck) << "left as the send set it";
    EXPECT_FALSE(plpTimer.enabled()) << "there is nothing to wait for";
    EXPECT_TRUE(plp.isConsistent());
    time.advance(20ms);
    EXPECT_FALSE(port.open);
    EXPECT_FALSE(plpTimer.enabled());
}

TEST_F(FailedPortTest, AFailedResendIsShown) {
    bringTo(LinkState::WaitAck);
    failSends();
    time.advance(500ms);
    EXPECT_THAT(window.warnings, SizeIs(1));
    EXPECT_EQ(window.states.front(), LinkFailed);
}

TEST_F(FailedPortTest, APortThatReportsAShortWriteCountsAsFailed) {
    class Refusing : public test::ScriptedPort {
        bool Send(std::string_view) override { return false; }
    } refusing;
    EXPECT_EQ(plp.PLP_Start(refusing, plpTimer), 1);
    EXPECT_THAT(window.states, ElementsAre(LinkFailed));
    plp.PLP_Stop();
}

TEST_F(FailedPortTest, AFailedAcknowledgementIsNotHiddenByTheLinkComingUp) {
    for (const FrameType type : {FrameType::Connect, FrameType::Data}) {
        bringTo(LinkState::WaitLink);
        failSends();
        arrive(type, 1);
        EXPECT_THAT(window.states, ElementsAre(LinkFailed));
        port.sendError.reset();
        stop();
    }
}

TEST_F(FailedPortTest, AfterAFailedWriteNoFurtherFrameIsAnswered) {
    bringTo(LinkState::Ready);
    failSends();
    std::string waiting;
    for (int i = 0; i < 200; ++i) {
        waiting += frame(FrameType::Data, 5, "out of order");
    }
    arrive(waiting);
    EXPECT_EQ(port.refusedSends, 1);
    EXPECT_THAT(window.warnings, SizeIs(1));
    EXPECT_TRUE(comTimer.enabled()) << "the next tick stops the server";
    time.advance(20ms);
    EXPECT_FALSE(port.open);
    EXPECT_EQ(port.refusedSends, 1);
}

TEST_F(FailedPortTest, ARequestWhoseAcknowledgementFailedIsNotServed) {
    bringTo(LinkState::Ready);
    failSends();
    arrive(FrameType::Data, 2, "record");
    EXPECT_THAT(services.events, IsEmpty()) << "the Organiser was told nothing of it";
}

TEST_F(FailedPortTest, ALinkThatIsGivenUpOnAFailedPortStaysFailed) {
    bringTo(LinkState::WaitAck);
    time.advance(kMaxResends * kAnswerTime);
    forget();
    failSends();
    plp.PLP_Timeout();
    EXPECT_THAT(window.states, ElementsAre(LinkFailed));
    EXPECT_THAT(window.errors, IsEmpty());
    EXPECT_EQ(port.refusedSends, 1);
}

TEST_F(FailedPortTest, ServicesSendNothingOnceAWriteFailed) {
    bringTo(LinkState::Ready);
    failSends();
    EXPECT_FALSE(plp.PLP_Send(FrameType::Data, "x"));
    port.sendError.reset();
    EXPECT_FALSE(plp.PLP_Send(FrameType::Data, "x"));
    plp.PLP_Timeout();
    plp.PLP_ReceiveEvent();
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(FailedPortTest, AfterAFailedReadNothingIsWritten) {
    bringTo(LinkState::WaitAck);
    port.readError = CommError(kCommFailed, "Device lost", "GetInput");
    arrive("x");
    plp.PLP_Timeout();
    EXPECT_FALSE(plp.PLP_Send(FrameType::Data, "x"));
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(FailedPortTest, APortThatDoesNotCloseIsTracedAndGivenUp) {
    class Stuck : public test::ScriptedPort {
        bool ClosePort() override { throw CommError(kCommFailed, "Error (5): CommClose", "ClosePort"); }
    } stuck;
    plp.PLP_Start(stuck, plpTimer);
    plp.PLP_Stop();
    EXPECT_THAT(traced(), Contains("COM,ERROR|ERROR|Error (5): CommClose"));
    EXPECT_FALSE(plpTimer.enabled());
    EXPECT_TRUE(plp.isConsistent());
    EXPECT_EQ(start(), 1) << "another port can be used";
}

TEST_F(FailedPortTest, AWriteThatFailsUnderAStopDoesNotKeepThePortOpen) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t& code, std::string&) {
        if (code == PLP_EV_RESET) {
            plp.PLP_Send(FrameType::Data, "a last word");
        }
    };
    failSends();
    stop();
    EXPECT_FALSE(port.open);
    EXPECT_FALSE(plpTimer.enabled());
    EXPECT_TRUE(plp.isConsistent());
    port.sendError.reset();
    EXPECT_EQ(start(), kLinkStarted);
}

TEST_F(FailedPortTest, AStopUnderAStopAfterAFailedWriteClosesThePortOnce) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t&, std::string&) {
        services.onEvent = nullptr;
        plp.PLP_Send(FrameType::Data, "a last word");
        plp.PLP_Stop();
    };
    failSends();
    stop();
    EXPECT_EQ(port.closed, 1);
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(FailedPortTest, TheNextStartFindsAWholeLink) {
    bringTo(LinkState::Ready);
    failSends();
    plp.PLP_Send(FrameType::Data, "x");
    port.sendError.reset();
    stop();
    bringTo(LinkState::Ready);
    EXPECT_TRUE(plp.PLP_Send(FrameType::Data, "x"));
    EXPECT_TRUE(plp.isConsistent());
}

}  // namespace
}  // namespace velmora
