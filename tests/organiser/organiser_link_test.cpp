#include "organiser/organiser_link.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "fake_line.h"
#include "organiser/frame_text.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using Kind = LinkFailure::Kind;
using Frames = std::vector<std::string>;

/// The server's end is a script: each frame that the Organiser sends takes the next answer, if there is one.
class OrganiserLinkTest : public testing::Test {
  protected:
    void SetUp() override {
        crc.load_CRCtable();
        line.onWrite = [this](const std::string&) {
            if (!answers.empty()) {
                for (const std::string& frame : answers.front()) {
                    line.arrive(frame);
                }
                answers.pop_front();
            }
        };
    }

    std::string ack(int sequence) { return frame(FrameType::Ack, sequence, ""); }
    std::string data(int sequence, const std::string& payload) {
        return frame(FrameType::Data, sequence, payload);
    }
    std::string discon(const std::string& reason) { return frame(FrameType::Discon, 0, reason); }
    std::string connect() { return frame(FrameType::Connect, 0, ""); }
    std::string frame(FrameType type, int sequence, const std::string& payload) {
        return buildFrame(crc, type, static_cast<std::uint8_t>(sequence), payload);
    }
    static std::string damaged(std::string frame) {
        frame[4] ^= 0x40;
        return frame;
    }

    /// The server's answers to the next frames, one list each.
    void answer(const std::vector<Frames>& lists) {
        answers.insert(answers.end(), lists.begin(), lists.end());
    }

    void linkUp() {
        answer({{ack(0)}});
        link.connect();
        forget();
    }
    /// As linkUp, and the first exchange is over: sequence 1 is behind both sides.
    void serviceOpen() {
        linkUp();
        answer({{ack(1), data(1, "")}, {}});
        link.request("FTRAN");
        forget();
    }
    void forget() {
        line.sent.clear();
        begin = line.clock;
    }
    /// Time since the last forget().
    OrganiserLine::Time elapsed() const { return line.clock - begin; }

    Frames sent() const {
        Frames texts;
        for (const auto& entry : line.sent) {
            texts.push_back(frameText(entry.bytes));
        }
        return texts;
    }
    std::vector<long> sentAtMs() const {
        std::vector<long> times;
        for (const auto& entry : line.sent) {
            times.push_back(std::chrono::duration_cast<std::chrono::milliseconds>(entry.at - begin).count());
        }
        return times;
    }
    LinkFailure failureOf(const std::string& payload) {
        try {
            link.request(payload);
        } catch (const LinkFailure& failure) {
            return failure;
        }
        ADD_FAILURE() << "the request was answered";
        return LinkFailure::noLink("");
    }

    Crc crc;
    test::FakeLine line;
    std::deque<Frames> answers;
    OrganiserLink link{line};
    OrganiserLine::Time begin{0};
};

// --- asking for the link ---

TEST_F(OrganiserLinkTest, LinkRequestGoesOutAtOnceAndEveryHalfSecond) {
    answer({{}, {}, {ack(0)}});
    link.connect();
    EXPECT_EQ(sent(), (Frames{"CONNECT", "CONNECT", "CONNECT"}));
    EXPECT_EQ(sentAtMs(), (std::vector<long>{0, 500, 1000}));
    EXPECT_TRUE(link.up());
}

TEST_F(OrganiserLinkTest, ServersLinkRequestIsAcknowledgedWithZeroAndBringsTheLinkUp) {
    answer({{connect()}});
    link.connect();
    EXPECT_EQ(sent(), (Frames{"CONNECT", "ACK 0"}));
    EXPECT_TRUE(link.up());
}

TEST_F(OrganiserLinkTest, ServerThatIgnoresRequestsIsToldToDropItsLink) {
    answer({{}, {}, {}, {connect()}});
    link.connect();
    EXPECT_EQ(sent(), (Frames{"CONNECT", "CONNECT", "CONNECT", "DISCON 00", "CONNECT", "ACK 0"}));
    EXPECT_EQ(sentAtMs()[3], 1500);
}

TEST_F(OrganiserLinkTest, EveryFurtherRequestIsPrecededByADisconnect) {
    answer({{}, {}, {}, {}, {}, {}, {ack(0)}});
    link.connect();
    EXPECT_EQ(sent(),
              (Frames{"CONNECT", "CONNECT", "CONNECT", "DISCON 00", "CONNECT", "DISCON 00", "CONNECT"}));
}

TEST_F(OrganiserLinkTest, LinkRequestsThatCrossOnTheLineMakeNoFrameGoTwice) {
    answer({{connect(), ack(0)}, {}, {ack(1), data(1, "")}});
    link.connect();
    link.request("FTRAN");
    EXPECT_EQ(sent(), (Frames{"CONNECT", "ACK 0", "DATA 1 len=5 FTRAN", "ACK 1"}));
}

TEST_F(OrganiserLinkTest, AfterCrossedLinkRequestsASecondAckOfZeroStillTellsOfALostFrame) {
    answer({{connect(), ack(0)}, {}, {ack(0)}, {ack(1), data(1, "")}});
    link.connect();
    link.request("FTRAN");
    EXPECT_EQ(sent(), (Frames{"CONNECT", "ACK 0", "DATA 1 len=5 FTRAN", "DATA 1 len=5 FTRAN", "ACK 1"}));
    EXPECT_EQ(sentAtMs()[3], 0);
}

TEST_F(OrganiserLinkTest, FramesOfAnOlderLinkDoNotBringTheLinkUp) {
    answer({{data(3, "old"), ack(3), discon("\xEE"), damaged(ack(0))}, {ack(0)}});
    link.connect();
    EXPECT_EQ(sent(), (Frames{"CONNECT", "CONNECT"}));
}

TEST_F(OrganiserLinkTest, NobodyAnswersForTenSeconds) {
    try {
        link.connect();
        FAIL() << "a link without a server";
    } catch (const LinkFailure& failure) {
        EXPECT_EQ(failure.kind(), Kind::NoLink);
    }
    EXPECT_EQ(elapsed(), 10s);
    EXPECT_FALSE(link.up());
}

TEST_F(OrganiserLinkTest, LinkThatIsUpIsNotAskedForAgain) {
    linkUp();
    link.connect();
    EXPECT_TRUE(line.sent.empty());
}

TEST_F(OrganiserLinkTest, NoiseWithoutEndDoesNotHoldUpTheRequests) {
    for (int ms = 0; ms < 12'000; ++ms) {
        line.arrive("noise", std::chrono::milliseconds(ms));
    }
    EXPECT_THROW(link.connect(), LinkFailure);
    EXPECT_LT(elapsed(), 11s);
}

// --- requests and replies ---

TEST_F(OrganiserLinkTest, ReplyIsAcknowledgedAndDelivered) {
    linkUp();
    answer({{ack(1), data(1, "hello")}});
    EXPECT_EQ(link.request("TIME"), "hello");
    EXPECT_EQ(sent(), (Frames{"DATA 1 len=4 TIME", "ACK 1"}));
}

TEST_F(OrganiserLinkTest, SequenceBeginsWithOneAndCountsModuloEight) {
    linkUp();
    for (const int sequence : {1, 2, 3, 4, 5, 6, 7, 0, 1, 2}) {
        forget();
        answer({{ack(sequence), data(sequence, "x")}, {}});
        EXPECT_EQ(link.request(""), "x");
        EXPECT_EQ(sent()[0], "DATA " + std::to_string(sequence) + " len=0");
    }
}

TEST_F(OrganiserLinkTest, ReplyCountsAsAcknowledgement) {
    linkUp();
    answer({{data(1, "")}, {}, {ack(2), data(2, "second")}});
    EXPECT_EQ(link.request("FTRAN"), "");
    EXPECT_EQ(link.request("x"), "second");
    EXPECT_EQ(sent(), (Frames{"DATA 1 len=5 FTRAN", "ACK 1", "DATA 2 len=1 x", "ACK 2"}));
}

TEST_F(OrganiserLinkTest, UnacknowledgedDataIsRepeatedTenTimesThenTheLinkIsGone) {
    serviceOpen();
    EXPECT_EQ(failureOf("x").kind(), Kind::NoLink);
    EXPECT_EQ(sent(), Frames(11, "DATA 2 len=1 x"));
    EXPECT_EQ(sentAtMs()[1], 500);
    EXPECT_EQ(sentAtMs()[10], 5000);
    EXPECT_EQ(elapsed(), 5500ms);
    EXPECT_FALSE(link.up());
}

TEST_F(OrganiserLinkTest, AcknowledgedDataIsNotRepeated) {
    serviceOpen();
    answer({{ack(2)}});
    line.arrive(data(2, "late"), 20s);
    EXPECT_EQ(link.request("x"), "late");
    EXPECT_EQ(sent(), (Frames{"DATA 2 len=1 x", "ACK 2"}));
}

TEST_F(OrganiserLinkTest, AcknowledgedRequestWithoutReplyEndsAfterThirtySeconds) {
    serviceOpen();
    answer({{ack(2)}});
    EXPECT_EQ(failureOf("x").kind(), Kind::NoLink);
    EXPECT_EQ(elapsed(), 30s);
}

TEST_F(OrganiserLinkTest, WrongAcknowledgementLeadsToARepeatAtOnceThatIsNotCounted) {
    serviceOpen();
    answer({{ack(1)}});
    EXPECT_EQ(failureOf("x").kind(), Kind::NoLink);
    EXPECT_EQ(sentAtMs()[1], 0);
    EXPECT_EQ(sent().size(), 12U);
}

TEST_F(OrganiserLinkTest, TwoSidesOutOfStepDoNotAnswerEachOtherForEver) {
    serviceOpen();
    answers.assign(1'000, {ack(5)});
    EXPECT_EQ(failureOf("x").kind(), Kind::NoLink);
    EXPECT_EQ(sent().size(), 11U * (1 + OrganiserLink::kMostPrompted));
}

TEST_F(OrganiserLinkTest, DamagedAndForeignFramesAreDropped) {
    serviceOpen();
    answer({{damaged(data(2, "no")), frame(static_cast<FrameType>(32), 0, ""), data(5, "no"), ack(2),
             data(2, "yes")}});
    EXPECT_EQ(link.request("x"), "yes");
    EXPECT_EQ(sent(), (Frames{"DATA 2 len=1 x", "ACK 2"}));
}

// --- the server repeats ---

TEST_F(OrganiserLinkTest, RepeatIsAcknowledgedAgainWhileTheServerRejectsTheNextRequest) {
    serviceOpen();
    // The acknowledgement of 1 was lost: the server answers the next request by repeating its own frame.
    answer({{data(1, "")}, {}, {ack(2), data(2, "yes")}});
    EXPECT_EQ(link.request("x"), "yes");
    EXPECT_EQ(sent(), (Frames{"DATA 2 len=1 x", "ACK 1", "DATA 2 len=1 x", "ACK 2"}));
    EXPECT_EQ(sentAtMs()[1], 50);
}

TEST_F(OrganiserLinkTest, DoubledFrameDrawsNoSecondAcknowledgement) {
    serviceOpen();
    answer({{data(1, ""), ack(2), data(2, "yes"), data(2, "yes")}, {}, {ack(3), data(3, "next")}});
    EXPECT_EQ(link.request("x"), "yes");
    EXPECT_EQ(link.request("y"), "next");
    EXPECT_EQ(sent(), (Frames{"DATA 2 len=1 x", "ACK 2", "DATA 3 len=1 y", "ACK 3"}));
}

TEST_F(OrganiserLinkTest, RepeatIsNeverDeliveredTwice) {
    serviceOpen();
    answer({{ack(2), data(1, "old"), data(2, "new")}});
    EXPECT_EQ(link.request("x"), "new");
}

TEST_F(OrganiserLinkTest, WaitBeforeTheSecondAcknowledgementFollowsTheRoundTrip) {
    linkUp();
    line.arrive(ack(1), 100ms);
    line.arrive(data(1, ""), 100ms);
    link.request("FTRAN");
    forget();
    answer({{data(1, "")}, {}, {ack(2), data(2, "yes")}});
    EXPECT_EQ(link.request("x"), "yes");
    EXPECT_EQ(sentAtMs()[1], 200);
}

// --- the link breaks or ends ---

TEST_F(OrganiserLinkTest, DisconnectIsARefusalWithItsReason) {
    serviceOpen();
    answer({{ack(2), discon("\xEE")}});
    const LinkFailure failure = failureOf("x");
    EXPECT_EQ(failure.kind(), Kind::Refused);
    EXPECT_EQ(failure.code(), 238);
    EXPECT_FALSE(link.up());
}

TEST_F(OrganiserLinkTest, LongReasonIsKeptWhole) {
    serviceOpen();
    answer({{discon("53")}});
    EXPECT_EQ(failureOf("x").reason(), "53");
}

TEST_F(OrganiserLinkTest, DisconnectWithoutReasonIsCodeZero) {
    serviceOpen();
    answer({{discon("")}});
    EXPECT_EQ(failureOf("x").code(), 0);
}

TEST_F(OrganiserLinkTest, LinkRequestBeforeTheFirstExchangeIsAcknowledgedAgain) {
    linkUp();
    answer({{connect()}, {}, {ack(1), data(1, "hello")}});
    EXPECT_EQ(link.request("TIME"), "hello");
    EXPECT_EQ(sent(), (Frames{"DATA 1 len=4 TIME", "ACK 0", "DATA 1 len=4 TIME", "ACK 1"}));
}

TEST_F(OrganiserLinkTest, LinkRequestInTheMiddleMeansThatTheLinkIsLost) {
    serviceOpen();
    answer({{connect()}});
    EXPECT_EQ(failureOf("x").kind(), Kind::Lost);
    EXPECT_FALSE(link.up());
}

TEST_F(OrganiserLinkTest, NewLinkBeginsWithSequenceOneAgain) {
    serviceOpen();
    answer({{connect()}});
    failureOf("x");
    linkUp();
    answer({{ack(1), data(1, "again")}});
    EXPECT_EQ(link.request("TIME"), "again");
    EXPECT_EQ(sent()[0], "DATA 1 len=4 TIME");
}

TEST_F(OrganiserLinkTest, RequestWithoutALinkIsLost) {
    EXPECT_EQ(failureOf("x").kind(), Kind::Lost);
    EXPECT_TRUE(line.sent.empty());
}

TEST_F(OrganiserLinkTest, GoneLineIsALineError) {
    serviceOpen();
    line.gone = true;
    EXPECT_THROW(link.request("x"), LineError);
}

TEST_F(OrganiserLinkTest, TraceSeesEveryFrameDamagedOnesToo) {
    Frames seen;
    OrganiserLink traced(line, {}, [&seen](FrameDirection direction, std::string_view bytes) {
        seen.push_back((direction == FrameDirection::Sent ? "> " : "< ") + frameText(bytes).substr(0, 7));
    });
    answer({{damaged(ack(0)), ack(0)}});
    traced.connect();
    EXPECT_EQ(seen, (Frames{"> CONNECT", "< damaged", "< ACK 0"}));
}

TEST_F(OrganiserLinkTest, AnswerToALateCopyIsNotTakenForOneOnTheNextLink) {
    serviceOpen();
    // The server dropped the link and then met a copy of the request, which it took for a new link's first.
    answer({{ack(2), discon("\xEE"), connect(), ack(1), discon("\xBE"), connect()}});
    EXPECT_EQ(failureOf("x").code(), 238);
    linkUp();
    answer({{ack(1), data(1, "hello")}});
    EXPECT_EQ(link.request("TIME"), "hello");
}

TEST_F(OrganiserLinkTest, EndAfterARefusalWaitsForSilenceAndSendsNothing) {
    serviceOpen();
    answer({{discon("\xEE")}});
    failureOf("x");
    line.sent.clear();
    line.arrive(connect(), 30ms);
    line.arrive(connect(), 530ms);
    forget();
    link.end();
    EXPECT_TRUE(line.sent.empty());
    EXPECT_EQ(elapsed(), 80ms);
}

TEST_F(OrganiserLinkTest, LineThatNeverFallsSilentIsWaitedForOneSecond) {
    serviceOpen();
    answer({{discon("\xEE")}});
    failureOf("x");
    for (int ms = 0; ms < 3'000; ms += 10) {
        line.arrive(connect(), std::chrono::milliseconds(ms));
    }
    forget();
    link.end();
    EXPECT_EQ(elapsed(), 1s);
}

// --- saying goodbye ---

TEST_F(OrganiserLinkTest, EndWaitsForTheServersNextLinkRequest) {
    serviceOpen();
    line.arrive(connect(), 20ms);
    link.end();
    EXPECT_EQ(sent(), Frames{"DISCON 00"});
    EXPECT_EQ(elapsed(), 20ms);
    EXPECT_FALSE(link.up());
}

TEST_F(OrganiserLinkTest, EndIsRepeatedThreeTimesThenGivenUpSilently) {
    serviceOpen();
    link.end();
    EXPECT_EQ(sent(), Frames(3, "DISCON 00"));
    EXPECT_EQ(elapsed(), 1500ms);
}

TEST_F(OrganiserLinkTest, DataThatComesAfterTheGoodbyeIsNotAcknowledged) {
    serviceOpen();
    answer({{data(2, ""), connect()}});
    link.end();
    EXPECT_EQ(sent(), Frames{"DISCON 00"});
}

TEST_F(OrganiserLinkTest, PortThatTheServerClosesDoesNotSpoilTheGoodbye) {
    serviceOpen();
    line.gone = true;
    EXPECT_NO_THROW(link.end());
}

TEST_F(OrganiserLinkTest, EndWithoutALinkSendsNothing) {
    link.end();
    EXPECT_TRUE(line.sent.empty());
}

// --- a line on which a byte takes a millisecond ---

class SlowOrganiserLinkTest : public OrganiserLinkTest {
  protected:
    static WireTime slowWire() {
        LineSettings settings;
        settings.baud = 10'000;
        return WireTime(settings);
    }
    /// Brings the link up, waits until the line is idle and counts the time from there.
    void slowLinkUp() {
        answer({{ack(0)}});
        slow.connect();
        line.clock += 1s;
        forget();
    }
    /// When the frame number `index` was sent, counted from the last forget().
    OrganiserLine::Time sentAt(std::size_t index) const { return line.sent.at(index).at - begin; }
    OrganiserLine::Time wireTime(std::size_t index) const {
        return std::chrono::milliseconds(line.sent.at(index).bytes.size());
    }

    OrganiserLink slow{line, slowWire()};
};

TEST_F(SlowOrganiserLinkTest, ARequestIsRepeatedHalfASecondAfterItHasLeft) {
    slowLinkUp();
    answer({{}, {ack(1), data(1, "")}});
    slow.request(std::string(250, kDle));
    EXPECT_GT(wireTime(0), 500ms);
    EXPECT_EQ(sentAt(1), wireTime(0) + 500ms);
}

TEST_F(SlowOrganiserLinkTest, ARepeatWaitsForItsOwnBytes) {
    slowLinkUp();
    answer({{}, {}, {ack(1), data(1, "")}});
    slow.request(std::string(250, 'x'));
    EXPECT_EQ(sentAt(2), 2 * (wireTime(0) + 500ms));
}

TEST_F(SlowOrganiserLinkTest, ARequestWaitsBehindTheAcknowledgementThatIsStillLeaving) {
    slowLinkUp();
    answer({{ack(1), data(1, "")}, {}, {}, {ack(2), data(2, "")}});
    slow.request("FTRAN");
    slow.request(std::string(100, 'x'));
    ASSERT_EQ(line.sent.size(), 5U) << "request, ACK, request, its repeat, ACK";
    EXPECT_EQ(sentAt(3), wireTime(1) + wireTime(2) + 500ms) << "the first request was acknowledged at once";
}

TEST_F(SlowOrganiserLinkTest, OnALineFasterThanItsSettingsTheGoodbyeComesAtOnce) {
    slowLinkUp();
    for (int sequence = 1; sequence < 8; ++sequence) {
        answer({{ack(sequence), data(sequence, "")}, {}});
        slow.request(std::string(250, 'x'));
    }
    answer({{connect()}});
    slow.end();
    EXPECT_EQ(elapsed(), 0s);
}

TEST_F(SlowOrganiserLinkTest, ALinkRequestIsRepeatedHalfASecondAfterItHasLeft) {
    answer({{}, {ack(0)}});
    slow.connect();
    EXPECT_EQ(sentAt(1), wireTime(0) + 500ms);
}

TEST_F(SlowOrganiserLinkTest, ARepeatOfTheServersDoesNotShortenTheWaitBelowTheBytesThatAreStillLeaving) {
    slowLinkUp();
    answer({{ack(1), data(1, "")}, {}, {data(1, "")}, {}, {ack(2), data(2, "")}});
    slow.request("FTRAN");
    line.clock += 1s;
    forget();
    slow.request(std::string(250, kDle));
    ASSERT_GE(line.sent.size(), 2U);
    EXPECT_EQ(frameText(line.sent[1].bytes), "ACK 1");
    EXPECT_EQ(sentAt(1), wireTime(0) + OrganiserLink::kShortestGrace);
}

}  // namespace
}  // namespace velmora
