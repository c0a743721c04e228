// Every frame in every state of the link.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

#include "link/debug.h"
#include "support/link_rig.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Event = test::RecordingServices::Event;
using Events = std::vector<Event>;
using Texts = std::vector<std::string>;
using States = std::vector<std::int32_t>;

const Event kReset{PLP_EV_RESET, ""};
const Event kAcked{PLP_EV_ACKED, ""};

Event dataEvent(const std::string& payload) {
    return {PLP_EV_DATA, payload};
}

enum class Verdict { Accept, Reject, Ignore };

constexpr auto kAllStates = {LinkState::Idle, LinkState::WaitLink, LinkState::Linking, LinkState::Ready,
                             LinkState::WaitAck};

struct Row {
    const char* name;
    LinkState from;
    FrameType type;
    std::uint8_t sequence;
    std::string data;
    Verdict verdict;
    LinkState to;
    Texts sent;
    States windowStates;
    Events events;
};

std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << row.name;
}
std::string rowName(const testing::TestParamInfo<Row>& row) {
    return row.param.name;
}

// A link that is idle at the end of a receive event is taken down (again) and sought anew, which is why rows
// that go through idle end in wait link with a link request.
// A row reads as three lines: its name, the state and the frame, what follows from it.
// clang-format off
const Row kRows[] = {
    {"AckInIdle",
     LinkState::Idle, FrameType::Ack, 3, "",
     Verdict::Accept, LinkState::WaitLink, {"CONNECT"}, {5}, {kReset}},
    {"AckInWaitLink",
     LinkState::WaitLink, FrameType::Ack, 0, "",
     Verdict::Accept, LinkState::Ready, {}, {6}, {}},
    {"AckInLinking",
     LinkState::Linking, FrameType::Ack, 0, "",
     Verdict::Accept, LinkState::Linking, {}, {}, {}},
    {"AckInReady",
     LinkState::Ready, FrameType::Ack, 7, "",
     Verdict::Accept, LinkState::Ready, {}, {}, {}},
    {"AwaitedAck",
     LinkState::WaitAck, FrameType::Ack, 1, "",
     Verdict::Accept, LinkState::Ready, {}, {}, {kAcked}},
    {"OtherAckInWaitAck",
     LinkState::WaitAck, FrameType::Ack, 0, "",
     Verdict::Reject, LinkState::WaitAck, {"DATA 1 outstanding"}, {}, {}},
    {"DisconInIdle",
     LinkState::Idle, FrameType::Discon, 0, "\xC0",
     Verdict::Accept, LinkState::WaitLink, {"CONNECT"}, {5}, {kReset}},
    {"DisconInWaitLink",
     LinkState::WaitLink, FrameType::Discon, 0, "x",
     Verdict::Accept, LinkState::WaitLink, {"CONNECT"}, {5, 5}, {kReset, kReset}},
    {"DisconInLinking",
     LinkState::Linking, FrameType::Discon, 0, "x",
     Verdict::Accept, LinkState::WaitLink, {"CONNECT"}, {5, 5}, {kReset, kReset}},
    {"DisconInReady",
     LinkState::Ready, FrameType::Discon, 0, "x",
     Verdict::Accept, LinkState::WaitLink, {"CONNECT"}, {5, 5}, {kReset, kReset}},
    {"DisconInWaitAck",
     LinkState::WaitAck, FrameType::Discon, 0, "x",
     Verdict::Accept, LinkState::WaitLink, {"CONNECT"}, {5, 5}, {kReset, kReset}},
    {"ConnectInIdle",
     LinkState::Idle, FrameType::Connect, 0, "",
     Verdict::Accept, LinkState::WaitLink, {"CONNECT"}, {5}, {kReset}},
    {"ConnectInWaitLink",
     LinkState::WaitLink, FrameType::Connect, 0, "",
     Verdict::Accept, LinkState::Linking, {"ACK 0"}, {6}, {}},
    {"ConnectWithASequenceIsAcknowledgedWithIt",
     LinkState::WaitLink, FrameType::Connect, 5, "",
     Verdict::Accept, LinkState::Linking, {"ACK 5"}, {6}, {}},
    {"ConnectInLinking",
     LinkState::Linking, FrameType::Connect, 0, "",
     Verdict::Accept, LinkState::Linking, {}, {}, {}},
    {"ConnectInReady",
     LinkState::Ready, FrameType::Connect, 0, "",
     Verdict::Accept, LinkState::Linking, {"ACK 0"}, {6}, {kReset}},
    {"ConnectInWaitAck",
     LinkState::WaitAck, FrameType::Connect, 0, "",
     Verdict::Accept, LinkState::Linking, {"ACK 0"}, {6}, {kReset}},
    {"DataInIdleIsAnsweredWithALinkRequestThatCarriesA0",
     LinkState::Idle, FrameType::Data, 1, "FTRAN",
     Verdict::Accept, LinkState::WaitLink, {"CONNECT 30"}, {}, {}},
    {"WrongFirstDataInWaitLink",
     LinkState::WaitLink, FrameType::Data, 2, "FTRAN",
     Verdict::Accept, LinkState::WaitLink, {"DISCON C1", "CONNECT"}, {5, 5}, {kReset, kReset}},
    {"WrongFirstDataInLinking",
     LinkState::Linking, FrameType::Data, 0, "FTRAN",
     Verdict::Accept, LinkState::WaitLink, {"DISCON C1", "CONNECT"}, {5, 5}, {kReset, kReset}},
    {"FirstDataInWaitLink",
     LinkState::WaitLink, FrameType::Data, 1, "FTRAN",
     Verdict::Accept, LinkState::Ready, {"ACK 1"}, {6}, {dataEvent("FTRAN")}},
    {"FirstDataInLinking",
     LinkState::Linking, FrameType::Data, 1, "FTRAN",
     Verdict::Accept, LinkState::Ready, {"ACK 1"}, {6}, {dataEvent("FTRAN")}},
    {"EmptyFirstDataInWaitLinkReachesNoService",
     LinkState::WaitLink, FrameType::Data, 1, "",
     Verdict::Accept, LinkState::Ready, {"ACK 1"}, {6}, {}},
    {"EmptyFirstDataInLinkingReachesNoService",
     LinkState::Linking, FrameType::Data, 1, "",
     Verdict::Accept, LinkState::Ready, {"ACK 1"}, {6}, {}},
    {"NextDataInReady",
     LinkState::Ready, FrameType::Data, 2, "\x10\x10\x03",
     Verdict::Accept, LinkState::Ready, {"ACK 2"}, {}, {dataEvent("\x10\x10\x03")}},
    {"EmptyNextDataInReadyReachesTheService",
     LinkState::Ready, FrameType::Data, 2, "",
     Verdict::Accept, LinkState::Ready, {"ACK 2"}, {}, {dataEvent("")}},
    {"RepeatedDataInReadyIsDroppedWithoutASecondAck",
     LinkState::Ready, FrameType::Data, 1, "FTRAN",
     Verdict::Ignore, LinkState::Ready, {}, {}, {}},
    {"OtherDataInReady",
     LinkState::Ready, FrameType::Data, 3, "x",
     Verdict::Reject, LinkState::Ready, {"ACK 1"}, {}, {}},
    {"RepeatedDataInWaitAckIsDropped",
     LinkState::WaitAck, FrameType::Data, 1, "x",
     Verdict::Ignore, LinkState::WaitAck, {}, {}, {}},
    {"NextDataInWaitAck",
     LinkState::WaitAck, FrameType::Data, 2, "x",
     Verdict::Reject, LinkState::WaitAck, {"DATA 1 outstanding"}, {}, {}},
    {"OtherDataInWaitAck",
     LinkState::WaitAck, FrameType::Data, 0, "x",
     Verdict::Reject, LinkState::WaitAck, {"DATA 1 outstanding"}, {}, {}},
};
// clang-format on

class FrameInState : public testing::TestWithParam<Row>, protected test::LinkRig {
  protected:
    /// How the one frame that arrived was judged, as the trace shows it.
    Verdict verdict() const {
        if (countTraced("PLP", "PLP_ERROR") > 0) {
            return Verdict::Reject;
        }
        // Each send traces the state once and the event itself once more at its end.
        const std::size_t others = countTraced("COM,DATA", "send") + 1;
        return countTraced("STATE", "") > others ? Verdict::Accept : Verdict::Ignore;
    }
};

TEST_P(FrameInState, IsHandledByTheTable) {
    const Row& row = GetParam();
    bringTo(row.from);
    ASSERT_EQ(plp.linkState(), row.from);

    EXPECT_EQ(arrive(row.type, row.sequence, row.data), kNoStateChange);

    EXPECT_EQ(plp.linkState(), row.to);
    EXPECT_EQ(sent(), row.sent);
    EXPECT_EQ(window.states, row.windowStates);
    EXPECT_EQ(services.events, row.events);
    EXPECT_EQ(verdict(), row.verdict);
    EXPECT_EQ(countTraced("COM,DATA", "recv"), 1U);
    EXPECT_TRUE(plp.isConsistent());
    EXPECT_TRUE(comTimer.enabled());
}

INSTANTIATE_TEST_SUITE_P(StateTable, FrameInState, testing::ValuesIn(kRows), rowName);

class LinkFramesTest : public testing::TestWithParam<LinkState>, protected test::LinkRig {
  protected:
    /// What the link does with a rejected frame, by the state it met.
    Texts answerToARejectedFrame() const {
        switch (GetParam()) {
            case LinkState::Idle:
                return {"CONNECT"};  // idle at the end of the event: sought anew
            case LinkState::WaitLink:
            case LinkState::Linking:
                return {};
            case LinkState::Ready:
                return {"ACK 1"};
            case LinkState::WaitAck:
                return {"DATA 1 outstanding"};
        }
        return {"?"};
    }
};

std::string stateName(const testing::TestParamInfo<LinkState>& state) {
    std::string name;
    for (const char c : linkStateName(state.param)) {
        if (c != ' ' && c != '_') {
            name += c;
        }
    }
    return name;
}

TEST_P(LinkFramesTest, AWrongCheckIsAProtocolError) {
    bringTo(GetParam());
    std::string bad = frame(FrameType::Data, 2, "MEMO");
    bad.back() = static_cast<char>(bad.back() ^ 1);
    arrive(bad);
    EXPECT_EQ(countTraced("PLP", "PLP_ERROR"), 1U);
    EXPECT_EQ(sent(), answerToARejectedFrame());
    EXPECT_TRUE(plp.isConsistent());
}

TEST_P(LinkFramesTest, AnUnknownTypeIsAProtocolError) {
    for (int type = 32; type <= 0xF8; type += 8) {
        bringTo(GetParam());
        arrive(static_cast<FrameType>(type), 1, "x");
        EXPECT_EQ(countTraced("PLP", "PLP_ERROR"), 1U) << type;
        EXPECT_EQ(sent(), answerToARejectedFrame()) << type;
        EXPECT_THAT(window.states, SizeIs(GetParam() == LinkState::Idle ? 1 : 0));
        stop();
    }
}

TEST_P(LinkFramesTest, ABodyTooShortForATypeIsAProtocolError) {
    bringTo(GetParam());
    arrive(std::string("\x16\x10\x02\x01\x10\x03\xC1\xC0", 8));
    EXPECT_EQ(countTraced("PLP", "PLP_ERROR"), 1U);
    EXPECT_EQ(sent(), answerToARejectedFrame());
}

TEST_P(LinkFramesTest, OnlySequenceOneBeginsALink) {
    if (GetParam() != LinkState::WaitLink && GetParam() != LinkState::Linking) {
        return;
    }
    for (std::uint8_t sequence = 0; sequence < kSequenceModulus; ++sequence) {
        bringTo(GetParam());
        arrive(FrameType::Data, sequence, "FTRAN");
        if (sequence == 1) {
            EXPECT_EQ(plp.linkState(), LinkState::Ready);
        } else {
            EXPECT_THAT(sent(), ElementsAre("DISCON C1", "CONNECT")) << sequence + 0;
        }
        stop();
    }
}

INSTANTIATE_TEST_SUITE_P(States, LinkFramesTest, testing::ValuesIn(kAllStates), stateName);

// ---------------------------------------------------------------------------------------------------------
// Sequences

class LinkSequenceTest : public testing::Test, protected test::LinkRig {};

TEST_F(LinkSequenceTest, AnAcknowledgedLinkRequestGivesTheReceiveSequence) {
    bringTo(LinkState::WaitLink);
    arrive(FrameType::Ack, 5);
    forget();
    arrive(FrameType::Data, 5, "repeat");
    EXPECT_THAT(sent(), IsEmpty());
    arrive(FrameType::Data, 6, "next");
    EXPECT_THAT(sent(), ElementsAre("ACK 6"));
    EXPECT_THAT(services.events, ElementsAre(dataEvent("next")));
}

/// Each road on which a link comes up.
void comeUpByAck(test::LinkRig& rig) {
    rig.arrive(FrameType::Ack, 0);
}
void comeUpByConnect(test::LinkRig& rig) {
    rig.arrive(FrameType::Connect, 0);
    rig.arrive(FrameType::Data, 1, "");
}
void comeUpByData(test::LinkRig& rig) {
    rig.arrive(FrameType::Data, 1, "");
}

TEST_F(LinkSequenceTest, AnyRoadBeginsWithSendSequenceOneAndShowsTheLink) {
    for (const auto comeUp : {comeUpByAck, comeUpByConnect, comeUpByData}) {
        bringTo(LinkState::Ready);
        // An earlier link has moved the numbers on.
        plp.PLP_Send(FrameType::Data, "old");
        arrive(FrameType::Ack, 1);
        plp.PLP_Send(FrameType::Data, "old");
        arrive(FrameType::Discon, 0, "x");
        forget();

        comeUp(*this);
        EXPECT_EQ(plp.linkState(), LinkState::Ready);
        EXPECT_EQ(window.current, Connect);
        port.sent.clear();
        plp.PLP_Send(FrameType::Data, "new");
        EXPECT_THAT(sent(), ElementsAre("DATA 1 new"));
        stop();
    }
}

TEST_F(LinkSequenceTest, NumbersRunModuloEightBothWays) {
    bringTo(LinkState::Ready);
    for (int i = 0; i < 20; ++i) {
        const auto receive = static_cast<std::uint8_t>((2 + i) % 8);
        const auto send = static_cast<std::uint8_t>((1 + i) % 8);
        forget();
        arrive(FrameType::Data, receive, "request");
        plp.PLP_Send(FrameType::Data, "reply");
        arrive(FrameType::Ack, send);
        EXPECT_EQ(sent(),
                  (Texts{"ACK " + std::to_string(receive), "DATA " + std::to_string(send) + " reply"}));
        EXPECT_EQ(services.events, (Events{dataEvent("request"), kAcked}));
    }
}

TEST_F(LinkSequenceTest, AServiceRepliesFromInsideItsEvents) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t& code, std::string& payload) {
        if (code == PLP_EV_DATA) {
            EXPECT_TRUE(plp.PLP_Send(FrameType::Data, "re: " + payload));
        } else if (code == PLP_EV_ACKED) {
            EXPECT_TRUE(plp.PLP_Send(FrameType::Data, "more"));
        }
        code = 99;
        payload = "changed";
    };
    arrive(FrameType::Data, 2, "a");
    EXPECT_EQ(plp.linkState(), LinkState::WaitAck);
    arrive(FrameType::Ack, 1);
    EXPECT_THAT(sent(), ElementsAre("ACK 2", "DATA 1 re: a", "DATA 2 more"));
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkSequenceTest, AServiceThatSendsDisconTakesTheLinkDown) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t& code, std::string&) {
        if (code == PLP_EV_DATA) {
            plp.PLP_Send(FrameType::Discon, "\xBE");
        }
    };
    // The frame behind it is not looked at: the link is down.
    arrive(frame(FrameType::Data, 2, "TIMEX") + frame(FrameType::Data, 3, "lost"));
    EXPECT_THAT(sent(), ElementsAre("ACK 2", "DISCON BE", "CONNECT"));
    EXPECT_THAT(services.events, ElementsAre(dataEvent("TIMEX"), kReset));
    EXPECT_EQ(plp.linkState(), LinkState::WaitLink);
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkSequenceTest, TwoFramesOfOneReadAreHandledInOrder) {
    bringTo(LinkState::Ready);
    arrive(frame(FrameType::Data, 2, "one") + "noise" + frame(FrameType::Data, 3, "two"));
    EXPECT_THAT(sent(), ElementsAre("ACK 2", "ACK 3"));
    EXPECT_THAT(services.events, ElementsAre(dataEvent("one"), dataEvent("two")));
}

TEST_F(LinkSequenceTest, AFrameSplitOverReadsIsCompletedByTheSecond) {
    const std::string whole = frame(FrameType::Data, 2, "MEMO\x10\x10\x03");
    for (std::size_t cut = 1; cut < whole.size(); ++cut) {
        bringTo(LinkState::Ready);
        arrive(whole.substr(0, cut));
        EXPECT_THAT(services.events, IsEmpty());
        arrive(whole.substr(cut));
        EXPECT_THAT(services.events, ElementsAre(dataEvent("MEMO\x10\x10\x03"))) << "cut at " << cut;
        stop();
    }
}

TEST_F(LinkSequenceTest, WhatStoodBehindTheFrameThatEndedTheLinkIsForgotten) {
    bringTo(LinkState::Ready);
    const std::string whole = frame(FrameType::Connect, 0);
    arrive(frame(FrameType::Discon, 0, "x") + whole.substr(0, 6));
    EXPECT_EQ(plp.linkState(), LinkState::WaitLink);
    forget();
    arrive(whole.substr(6));
    EXPECT_THAT(sent(), IsEmpty());
    arrive(whole);
    EXPECT_THAT(sent(), ElementsAre("ACK 0"));
}

TEST_F(LinkSequenceTest, ALinkRequestWhileAnAckIsAwaitedResetsTheServices) {
    bringTo(LinkState::WaitAck);
    arrive(FrameType::Connect, 0);
    EXPECT_THAT(services.events, ElementsAre(kReset));
    EXPECT_EQ(plp.linkState(), LinkState::Linking);
    arrive(FrameType::Data, 1, "FTRAN");
    EXPECT_EQ(plp.linkState(), LinkState::Ready);
}

}  // namespace
}  // namespace velmora
