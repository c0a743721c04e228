// Starting and stopping the link, its timers, failures of the port, and what the trace says of it all.
#include "link/plp.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

#include "support/link_rig.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

class LinkTest : public testing::Test, protected test::LinkRig {
  protected:
    void failReads(std::int32_t number) { port.readError = CommError(number, "Device lost", "GetInput"); }
    void failCount(std::int32_t number) {
        port.countError = CommError(number, "Invalid port number", "CommRead (InBufferCount)");
    }
};

// ---------------------------------------------------------------------------------------------------------
// Start and stop

TEST_F(LinkTest, StartOpensThePortAndSeeksALink) {
    time.local = {2026, 11, 2, 8, 30, 0};
    EXPECT_EQ(start(), 1);
    EXPECT_TRUE(port.open);
    EXPECT_TRUE(port.dtr);
    EXPECT_TRUE(comTimer.enabled());
    EXPECT_EQ(plp.linkState(), LinkState::WaitLink);
    EXPECT_THAT(sent(), ElementsAre("CONNECT"));
    EXPECT_TRUE(plpTimer.enabled());
    EXPECT_EQ(plpTimer.interval(), 500ms);
    EXPECT_EQ(plp.startTime(), time.local);
    EXPECT_TRUE(plp.isConsistent());
    EXPECT_THAT(traced(), ElementsAre("PLP|starting PLP|", "STATE||", "COM|open port|COM1 no rate",
                                      "PLP|PLP INITLINK|", "COM,DATA|send|CONNECT", "STATE||"));
}

struct OpenFailure {
    const char* name;
    std::int32_t number;
    const char* description;
    int result;
    const char* text;
};
std::ostream& operator<<(std::ostream& out, const OpenFailure& row) {
    return out << row.name;
}
std::string failureName(const testing::TestParamInfo<OpenFailure>& row) {
    return row.param.name;
}

class LinkStartFailure : public testing::TestWithParam<OpenFailure>, protected test::LinkRig {};

TEST_P(LinkStartFailure, IsToldByTheResult) {
    port.number = 7;
    port.openError = CommError(GetParam().number, GetParam().description, "OpenPort");
    EXPECT_EQ(start(), GetParam().result);
    EXPECT_THAT(traced(), ElementsAre("PLP|starting PLP|", "STATE||",
                                      std::string("COM,ERROR|ERROR|") + GetParam().text));
    EXPECT_FALSE(comTimer.enabled());
    EXPECT_FALSE(plpTimer.enabled());
    EXPECT_FALSE(plp.PLP_Send(FrameType::Data, "x"));
    EXPECT_TRUE(plp.isConsistent());

    port.openError.reset();
    EXPECT_EQ(start(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Ports, LinkStartFailure,
    testing::Values(
        OpenFailure{"NoSuchPort", 8002, "Invalid port number", 5, "8002: Invalid port number COM7"},
        OpenFailure{"InUse", 8005, "Port already open", 4, "8005: Port already open COM7"},
        OpenFailure{"BadSettings", 380, "Invalid port settings", 6, "380: Invalid port settings COM7"},
        OpenFailure{"AnythingElse", -1, "Error (31): CommOpen - x", 6, "-1: Error (31): CommOpen - x COM7"}),
    failureName);

TEST_F(LinkTest, APortThatRefusesDtrIsClosedAgain) {
    class NoDtr : public test::ScriptedPort {
        void setDTREnable(bool) override { throw CommError(kCommFailed, "no line", "CommSetLine"); }
    } stubborn;
    EXPECT_EQ(plp.PLP_Start(stubborn, plpTimer), 6);
    EXPECT_FALSE(stubborn.open);
    EXPECT_FALSE(comTimer.enabled());
}

TEST_F(LinkTest, StopEndsTheServiceAndLetsGoOfThePort) {
    bringTo(LinkState::WaitAck);
    stop();
    EXPECT_THAT(services.events, ElementsAre(Pair(PLP_EV_RESET, "")));
    EXPECT_FALSE(port.open);
    EXPECT_FALSE(plpTimer.enabled());
    EXPECT_THAT(traced(), ElementsAre("PLP|PLP stopping|", "COM|close port|", "COM|PLP_STOPPED|"));
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkTest, StopOfAClosedPortDoesNotCloseItAgain) {
    bringTo(LinkState::Ready);
    port.open = false;
    stop();
    EXPECT_EQ(port.closed, 0);
    EXPECT_THAT(traced(), ElementsAre("PLP|PLP stopping|", "COM|PLP_STOPPED|"));
}

TEST_F(LinkTest, StopOfALinkThatDoesNotRunLeavesNoTrace) {
    plp.PLP_Stop();
    EXPECT_THAT(traced(), IsEmpty());
    bringTo(LinkState::Ready);
    stop();
    forget();
    plp.PLP_Stop();
    EXPECT_THAT(traced(), IsEmpty());
    EXPECT_THAT(services.events, IsEmpty());
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkTest, AStopInsideAStopIsTracedOnce) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t&, std::string&) {
        services.onEvent = nullptr;
        plp.PLP_Stop();
    };
    stop();
    EXPECT_THAT(traced(), ElementsAre("PLP|PLP stopping|", "COM|close port|", "COM|PLP_STOPPED|"));
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkTest, AServiceMayAnswerTheResetOfAStop) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t&, std::string&) { plp.PLP_Send(FrameType::Data, "bye"); };
    stop();
    EXPECT_THAT(sent(), ElementsAre("DATA 1 bye"));
    EXPECT_FALSE(plpTimer.enabled());
}

TEST_F(LinkTest, AStoppedLinkDoesNothing) {
    bringTo(LinkState::Ready);
    stop();
    forget();
    EXPECT_FALSE(plp.PLP_Send(FrameType::Data, "x"));
    plp.PLP_Timeout();
    EXPECT_EQ(plp.PLP_ReceiveEvent(), kNoStateChange);
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_THAT(window.states, IsEmpty());
    EXPECT_FALSE(plpTimer.enabled());
    EXPECT_EQ(plp.linkState(), LinkState::Idle);
}

TEST_F(LinkTest, ARestartBeginsAfresh) {
    bringTo(LinkState::WaitAck);
    const std::string half = frame(FrameType::Data, 1, "FTRAN");
    arrive(half.substr(0, 7));
    stop();
    start();
    EXPECT_EQ(plp.linkState(), LinkState::WaitLink);
    forget();
    arrive(half.substr(7));
    EXPECT_THAT(sent(), IsEmpty()) << "the half frame belonged to the earlier run";
}

TEST_F(LinkTest, WithoutServicesEventsAreDropped) {
    PLP alone(crc, window, comTimer, trace, yield, time);
    alone.PLP_Start(port, plpTimer);
    port.input = frame(FrameType::Data, 1, "FTRAN");
    alone.PLP_ReceiveEvent();
    EXPECT_EQ(alone.linkState(), LinkState::Ready);
    alone.PLP_Stop();
}

// ---------------------------------------------------------------------------------------------------------
// Requests to stop

TEST_F(LinkTest, StopRequestsAreReportedOnce) {
    bringTo(LinkState::Ready);
    plp.stopRequests().exit = true;
    EXPECT_EQ(plp.PLP_ReceiveEvent(), OnExit);
    EXPECT_EQ(plp.PLP_ReceiveEvent(), kNoStateChange);
    plp.stopRequests().shutdown = true;
    EXPECT_EQ(plp.PLP_ReceiveEvent(), Shutdown);
    EXPECT_EQ(plp.PLP_ReceiveEvent(), kNoStateChange);
}

TEST_F(LinkTest, ExitGoesBeforeShutdownAndBothAreCleared) {
    bringTo(LinkState::Ready);
    plp.stopRequests() = {true, true};
    EXPECT_EQ(plp.PLP_ReceiveEvent(), 3);
    EXPECT_EQ(plp.PLP_ReceiveEvent(), -1);
}

TEST_F(LinkTest, ARequestMadeWhileTheLinkDropsIsReportedByThatEvent) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t& code, std::string&) {
        plp.stopRequests().shutdown = code == PLP_EV_RESET;
    };
    EXPECT_EQ(arrive(FrameType::Discon, 0, "x"), Shutdown);
}

TEST_F(LinkTest, AStartForgetsRequestsThatWereNeverCompleted) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t&, std::string&) { plp.stopRequests() = {true, true}; };
    stop();
    services.onEvent = nullptr;
    start();
    EXPECT_EQ(plp.PLP_ReceiveEvent(), kNoStateChange);
}

// ---------------------------------------------------------------------------------------------------------
// Timers

TEST_F(LinkTest, ALinkRequestIsRepeatedEvery500MsUntilItIsAnswered) {
    start();
    time.advance(499ms);
    EXPECT_THAT(sent(), SizeIs(1));
    time.advance(1ms);
    EXPECT_THAT(sent(), ElementsAre("CONNECT", "CONNECT"));
    time.advance(60s);
    EXPECT_THAT(sent(), SizeIs(122));
    forget();
    port.input = frame(FrameType::Ack, 0);
    time.advance(5s);
    EXPECT_EQ(plp.linkState(), LinkState::Ready);
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(LinkTest, TheProtocolTimerIsArmedByTheState) {
    bringTo(LinkState::WaitLink);
    time.advance(300ms);
    plp.PLP_ReceiveEvent();
    EXPECT_EQ(plpTimer.interval(), 500ms);
    EXPECT_EQ(plpTimer.remaining(), 500ms) << "a receive event starts the wait again";
    stop();

    bringTo(LinkState::Linking);
    EXPECT_FALSE(plpTimer.enabled());
    stop();

    bringTo(LinkState::Ready);
    EXPECT_TRUE(plpTimer.enabled());
    EXPECT_EQ(plpTimer.interval(), 30s);
    stop();

    bringTo(LinkState::WaitAck);
    EXPECT_TRUE(plpTimer.enabled());
    EXPECT_EQ(plpTimer.interval(), 500ms);
    plp.PLP_ReceiveEvent();
    EXPECT_EQ(plpTimer.interval(), 500ms);
}

TEST_F(LinkTest, AReadyLinkRepeatsItsLastAckAfter30SecondsOfSilence) {
    bringTo(LinkState::Ready);
    time.advance(29'999ms);
    EXPECT_THAT(sent(), IsEmpty());
    time.advance(1ms);
    EXPECT_THAT(sent(), ElementsAre("ACK 1"));
    EXPECT_EQ(plp.linkState(), LinkState::Ready);
    // The silence is answered once; the next bytes start the wait again.
    time.advance(90s);
    EXPECT_THAT(sent(), SizeIs(1));
    EXPECT_TRUE(plp.isConsistent());
    arrive(FrameType::Data, 1, "repeat");
    EXPECT_THAT(sent(), SizeIs(1));
    time.advance(30s);
    EXPECT_THAT(sent(), ElementsAre("ACK 1", "ACK 1"));
}

TEST_F(LinkTest, DataIsSentOnceAndFourTimesAgainBeforeTheLinkIsGivenUp) {
    bringTo(LinkState::WaitAck);
    for (std::size_t resends = 1; resends <= 4; ++resends) {
        time.advance(500ms);
        EXPECT_THAT(sent(), SizeIs(resends));
        EXPECT_EQ(sent().back(), "DATA 1 outstanding");
        EXPECT_EQ(plp.linkState(), LinkState::WaitAck);
    }
    EXPECT_THAT(window.states, IsEmpty());
    forget();

    time.advance(500ms);
    EXPECT_THAT(sent(), ElementsAre("DISCON C0", "CONNECT"));
    EXPECT_THAT(window.states, ElementsAre(Error, WaitLink));
    EXPECT_THAT(window.errors, ElementsAre("Too many send errors!"));
    EXPECT_THAT(services.events, ElementsAre(Pair(PLP_EV_RESET, "")));
    EXPECT_EQ(plp.linkState(), LinkState::WaitLink);
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkTest, AWrongAckCostsAResendButNotTheLink) {
    bringTo(LinkState::WaitAck);
    for (std::size_t resends = 1; resends <= 4; ++resends) {
        arrive(FrameType::Ack, 0);
        EXPECT_THAT(sent(), SizeIs(resends));
        EXPECT_EQ(plp.linkState(), LinkState::WaitAck);
    }
    arrive(FrameType::Ack, 0);
    EXPECT_EQ(sent()[4], "DISCON C0");
}

TEST_F(LinkTest, EachDataFrameHasItsOwnBudget) {
    bringTo(LinkState::WaitAck);
    time.advance(2s);
    arrive(FrameType::Ack, 1);
    plp.PLP_Send(FrameType::Data, "next");
    forget();
    time.advance(2s);
    EXPECT_THAT(sent(), SizeIs(4));
    EXPECT_EQ(plp.linkState(), LinkState::WaitAck);
}

TEST_F(LinkTest, AResendTakesUpTheWholeWaitAgain) {
    bringTo(LinkState::WaitAck);
    time.advance(400ms);
    arrive(FrameType::Ack, 0);
    EXPECT_EQ(plpTimer.remaining(), 500ms);
}

TEST_F(LinkTest, ATimeOutInIdleSeeksALink) {
    bringTo(LinkState::Idle);
    plp.PLP_Timeout();
    EXPECT_EQ(plp.linkState(), LinkState::WaitLink);
    EXPECT_THAT(traced(), ElementsAre("PLP|0|timeout", "PLP|PLP INITLINK|", "COM,DATA|send|CONNECT",
                                      "STATE||", "STATE||"));
}

TEST_F(LinkTest, ATimeOutInLinkingChangesNothing) {
    bringTo(LinkState::Linking);
    plp.PLP_Timeout();
    EXPECT_EQ(plp.linkState(), LinkState::Linking);
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_THAT(traced(), ElementsAre("PLP|2|timeout", "PLP|PLP_ERROR|", "STATE||"));
}

// ---------------------------------------------------------------------------------------------------------
// Sending

TEST_F(LinkTest, ADisconWithoutAReasonCarriesZero) {
    bringTo(LinkState::Ready);
    EXPECT_TRUE(plp.PLP_Send(FrameType::Discon, {}));
    EXPECT_TRUE(plp.PLP_Send(FrameType::Discon, "\xBC"));
    EXPECT_THAT(sent(), ElementsAre("DISCON 00", "DISCON BC"));
    EXPECT_EQ(plp.linkState(), LinkState::Idle);
    EXPECT_FALSE(plpTimer.enabled());
}

TEST_F(LinkTest, AnotherTypeIsSentAsItIs) {
    bringTo(LinkState::Ready);
    EXPECT_TRUE(plp.PLP_Send(static_cast<FrameType>(40), "x"));
    EXPECT_THAT(sent(), ElementsAre("type 40"));
    EXPECT_EQ(plp.linkState(), LinkState::Ready);
}

// ---------------------------------------------------------------------------------------------------------
// Reading

TEST_F(LinkTest, ALargeInputIsReadIn1024BytePortionsWithAYieldAfterEach) {
    bringTo(LinkState::Ready);
    yield.calls = 0;
    port.readLengths.clear();
    arrive(frame(FrameType::Data, 2, std::string(3000, 'x')));
    EXPECT_THAT(port.readLengths, ElementsAre(1024, 1024, 1024));
    EXPECT_EQ(yield.calls, 3);
    EXPECT_THAT(services.events, ElementsAre(Pair(PLP_EV_DATA, std::string(3000, 'x'))));
}

TEST_F(LinkTest, BothTimersRestWhileItReads) {
    bringTo(LinkState::Ready);
    yield.onYield = [this] {
        EXPECT_FALSE(comTimer.enabled());
        EXPECT_FALSE(plpTimer.enabled());
    };
    arrive("noise");
    EXPECT_TRUE(comTimer.enabled());
    EXPECT_TRUE(plpTimer.enabled());
}

TEST_F(LinkTest, AnEmptyReadDoesNotLeaveTheServerDeaf) {
    for (const LinkState state : {LinkState::WaitLink, LinkState::Linking, LinkState::Ready}) {
        bringTo(state);
        port.emptyReads = 1;
        arrive(FrameType::Connect, 0);
        EXPECT_THAT(sent(), IsEmpty());
        EXPECT_TRUE(comTimer.enabled());
        EXPECT_TRUE(plp.isConsistent());
        time.advance(20ms);
        EXPECT_EQ(plp.linkState(), LinkState::Linking);
        stop();
    }
}

TEST_F(LinkTest, AReadThatBringsNothingToAnIdleLinkSeeksALink) {
    bringTo(LinkState::Idle);
    plp.PLP_ReceiveEvent();
    EXPECT_THAT(sent(), ElementsAre("CONNECT"));
    EXPECT_EQ(plp.linkState(), LinkState::WaitLink);
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkTest, AReadErrorIsTracedAndStopsTheServer) {
    bringTo(LinkState::Ready);
    failReads(kCommFailed);
    arrive("x");
    EXPECT_THAT(traced(), ElementsAre("EVENT|Event RECEIVE|", "COM,ERROR|ERROR -1 Device lost in GetInput|",
                                      "STATE||"));
    EXPECT_THAT(window.states, ElementsAre(LinkFailed));
    EXPECT_TRUE(comTimer.enabled()) << "the next tick stops the server";
    time.advance(20ms);
    EXPECT_EQ(window.current, Offline);
    EXPECT_FALSE(port.open);
}

TEST_F(LinkTest, AFailedCountIsAReadError) {
    bringTo(LinkState::Ready);
    failCount(8002);
    plp.PLP_ReceiveEvent();
    EXPECT_EQ(traced()[1], "COM,ERROR|ERROR 8002 Invalid port number in CommRead (InBufferCount)|");
    EXPECT_EQ(window.current, LinkFailed);
}

TEST_F(LinkTest, ErrorNumberZeroIsNoError) {
    bringTo(LinkState::WaitLink);
    failReads(0);
    arrive("x");
    EXPECT_THAT(traced(), ElementsAre("EVENT|Event RECEIVE|", "STATE||"));
    EXPECT_THAT(window.states, IsEmpty());
    EXPECT_TRUE(comTimer.enabled());
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkTest, AWindowThatStoppedEndsTheLoopAndTheTimersStayAsTheyAre) {
    bringTo(LinkState::Ready);
    yield.onYield = [this] { window.current = Offline; };
    arrive(std::string(3000, 'x'));
    EXPECT_EQ(yield.calls, 1 + 2) << "two on the way to the link, one here";
    EXPECT_FALSE(comTimer.enabled());
    EXPECT_FALSE(plpTimer.enabled());
}

TEST_F(LinkTest, EverythingBelowTheHandlersStopsAtTheFrameThatEndsTheLink) {
    bringTo(LinkState::Ready);
    arrive(frame(FrameType::Discon, 0, "x") + std::string(3000, 'x'));
    EXPECT_EQ(port.input.size(), 3000U - (1024U - frame(FrameType::Discon, 0, "x").size()));
    EXPECT_TRUE(comTimer.enabled());
    EXPECT_TRUE(plpTimer.enabled()) << "the link is sought again";
}

// ---------------------------------------------------------------------------------------------------------
// What the trace says

TEST_F(LinkTest, TraceOfAReceiveEventWithARequestAndItsReply) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t&, std::string&) { plp.PLP_Send(FrameType::Data, "reply"); };
    arrive(FrameType::Data, 2, "request");
    EXPECT_THAT(traced(),
                ElementsAre("EVENT|Event RECEIVE|", "COM,DATA|recv|DATA 2 request", "COM,DATA|send|ACK 2",
                            "STATE||", "COM,DATA|send|DATA 1 reply", "STATE||", "STATE||", "STATE||"));
}

TEST_F(LinkTest, TraceOfALinkThatIsDropped) {
    bringTo(LinkState::Ready);
    arrive(FrameType::Discon, 0, "x");
    EXPECT_THAT(traced(), ElementsAre("EVENT|Event RECEIVE|", "COM,DATA|recv|DISCON 78", "PLP|PLP DOWN|",
                                      "STATE||", "PLP|PLP DOWN|", "PLP|PLP INITLINK|",
                                      "COM,DATA|send|CONNECT", "STATE||", "STATE||"));
}

TEST_F(LinkTest, TraceOfAResend) {
    bringTo(LinkState::WaitAck);
    time.advance(500ms);
    EXPECT_THAT(traced(), ElementsAre("PLP|4|timeout", "PLP|PLP_ERROR|", "COM,DATA|resend|DATA 1 outstanding",
                                      "STATE||"));
}

TEST_F(LinkTest, TraceOfGivingUp) {
    bringTo(LinkState::WaitAck);
    time.advance(2s);
    forget();
    time.advance(500ms);
    EXPECT_THAT(traced(), ElementsAre("PLP|4|timeout", "PLP|PLP_ERROR|", "COM,DATA|send|DISCON C0", "STATE||",
                                      "PLP|PLP DOWN|", "COM,DATA|send|CONNECT", "STATE||", "STATE||"));
}

TEST_F(LinkTest, TraceOfARepeatedLinkRequest) {
    bringTo(LinkState::WaitLink);
    time.advance(500ms);
    EXPECT_THAT(traced(), ElementsAre("PLP|1|timeout", "COM,DATA|send|CONNECT", "STATE||", "STATE||"));
}

}  // namespace
}  // namespace velmora
