// Handlers that run inside the link's own calls: a Stop button, a Start button, a reply, at the worst
// moments.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>

#include "support/link_rig.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

/// Where the other handler runs.
enum class Place { Send, Read, Yield, Services, State, Warning };
/// What it does there.
enum class Deed { Stop, StopAndStart };

/// Something that makes the link work.
struct Doing {
    const char* name;
    LinkState from;
    void (*act)(test::LinkRig& rig);
    std::vector<Place> places;  ///< the calls that it makes
};

void receiveFirstData(test::LinkRig& rig) {
    rig.arrive(FrameType::Data, 1, "FTRAN");
}
void receiveNextData(test::LinkRig& rig) {
    rig.arrive(FrameType::Data, 2, "x");
}
void receiveThreeFrames(test::LinkRig& rig) {
    rig.arrive(rig.frame(FrameType::Data, 2, "x") + rig.frame(FrameType::Data, 3, "y") +
               rig.frame(FrameType::Data, 4, std::string(2000, 'z')));
}
void receiveWrongFirstData(test::LinkRig& rig) {
    rig.arrive(FrameType::Data, 4, "x");
}
void receiveDiscon(test::LinkRig& rig) {
    rig.arrive(FrameType::Discon, 0, "x");
}
void receiveConnect(test::LinkRig& rig) {
    rig.arrive(FrameType::Connect, 0);
}
void receiveAck(test::LinkRig& rig) {
    rig.arrive(FrameType::Ack, 1);
}
void receiveGarbledFrame(test::LinkRig& rig) {
    rig.arrive(std::string("\x16\x10\x02zz\x10\x03zz", 9));
}
void receiveWithReplies(test::LinkRig& rig) {
    const auto other = rig.services.onEvent;
    rig.services.onEvent = [&rig, other](std::int32_t& code, std::string& payload) {
        if (other) {
            other(code, payload);
        }
        rig.plp.PLP_Send(FrameType::Data, "reply");
    };
    rig.arrive(FrameType::Data, 2, "x");
}
void timeOut(test::LinkRig& rig) {
    rig.plp.PLP_Timeout();
}
void spendTheBudget(test::LinkRig& rig) {
    for (int i = 0; i < 5; ++i) {
        rig.plp.PLP_Timeout();
    }
}
void failToSend(test::LinkRig& rig) {
    rig.port.sendError = CommError(kCommFailed, "gone", "Send");
    rig.plp.PLP_Send(FrameType::Data, "x");
    rig.port.sendError.reset();
}
void failToRead(test::LinkRig& rig) {
    rig.port.readError = CommError(kCommFailed, "gone", "GetInput");
    rig.arrive("x");
    rig.port.readError.reset();
}
void stopIt(test::LinkRig& rig) {
    rig.stop();
}

const Doing kDoings[] = {
    {"FirstDataInWaitLink",
     LinkState::WaitLink,
     receiveFirstData,
     {Place::Send, Place::Read, Place::Yield, Place::Services, Place::State}},
    {"FirstDataInLinking",
     LinkState::Linking,
     receiveFirstData,
     {Place::Send, Place::Read, Place::Yield, Place::Services, Place::State}},
    {"NextData",
     LinkState::Ready,
     receiveNextData,
     {Place::Send, Place::Read, Place::Yield, Place::Services}},
    {"SeveralFrames",
     LinkState::Ready,
     receiveThreeFrames,
     {Place::Send, Place::Read, Place::Yield, Place::Services}},
    {"DataInIdle", LinkState::Idle, receiveFirstData, {Place::Send, Place::Read, Place::Yield}},
    {"AckInIdle", LinkState::Idle, receiveAck, {Place::Send, Place::Read, Place::Services, Place::State}},
    {"WrongFirstData",
     LinkState::Linking,
     receiveWrongFirstData,
     {Place::Send, Place::Read, Place::Services, Place::State}},
    {"Discon", LinkState::Ready, receiveDiscon, {Place::Send, Place::Read, Place::Services, Place::State}},
    {"ConnectInWaitLink",
     LinkState::WaitLink,
     receiveConnect,
     {Place::Send, Place::Read, Place::Yield, Place::State}},
    {"ConnectInWaitAck",
     LinkState::WaitAck,
     receiveConnect,
     {Place::Send, Place::Read, Place::Yield, Place::Services, Place::State}},
    {"AckInWaitLink", LinkState::WaitLink, receiveAck, {Place::Read, Place::Yield, Place::State}},
    {"AckInWaitAck", LinkState::WaitAck, receiveAck, {Place::Read, Place::Yield, Place::Services}},
    {"GarbledFrameInReady", LinkState::Ready, receiveGarbledFrame, {Place::Send, Place::Read, Place::Yield}},
    {"GarbledFrameInWaitAck",
     LinkState::WaitAck,
     receiveGarbledFrame,
     {Place::Send, Place::Read, Place::Yield}},
    {"ReplyFromAService", LinkState::Ready, receiveWithReplies, {Place::Send, Place::Services}},
    {"TimeOutInWaitLink", LinkState::WaitLink, timeOut, {Place::Send}},
    {"TimeOutInReady", LinkState::Ready, timeOut, {Place::Send}},
    {"TimeOutInWaitAck", LinkState::WaitAck, timeOut, {Place::Send}},
    {"TimeOutInIdle", LinkState::Idle, timeOut, {Place::Send}},
    {"BudgetSpent", LinkState::WaitAck, spendTheBudget, {Place::Send, Place::Services, Place::State}},
    {"FailedWrite", LinkState::Ready, failToSend, {Place::State, Place::Warning}},
    {"FailedRead", LinkState::Ready, failToRead, {Place::State}},
    {"Stop", LinkState::Ready, stopIt, {Place::Services}},
};

struct Case {
    const Doing* doing;
    Place place;
    Deed deed;
    int call;  ///< at which of the calls of that kind
};

const char* nameOf(Place place) {
    switch (place) {
        case Place::Send:
            return "Send";
        case Place::Read:
            return "Read";
        case Place::Yield:
            return "Yield";
        case Place::Services:
            return "Services";
        case Place::State:
            return "State";
        case Place::Warning:
            return "Warning";
    }
    return "?";
}
std::string caseName(const testing::TestParamInfo<Case>& info) {
    return std::string(info.param.doing->name) +
           (info.param.deed == Deed::Stop ? "_StopIn" : "_StopAndStartIn") + nameOf(info.param.place) +
           (info.param.call == 0 ? "" : "Again");
}
std::ostream& operator<<(std::ostream& out, const Case& row) {
    return out << row.doing->name << " " << nameOf(row.place);
}

std::vector<Case> allCases() {
    std::vector<Case> cases;
    for (const Doing& doing : kDoings) {
        for (const Place place : doing.places) {
            for (const Deed deed : {Deed::Stop, Deed::StopAndStart}) {
                cases.push_back({&doing, place, deed, 0});
            }
        }
    }
    // The second call of a kind is another place in the code.
    for (const Deed deed : {Deed::Stop, Deed::StopAndStart}) {
        for (const Doing& doing : kDoings) {
            const std::string name = doing.name;
            if (name == "BudgetSpent" || name == "WrongFirstData" || name == "SeveralFrames") {
                cases.push_back({&doing, Place::Send, deed, 1});
            }
            if (name == "BudgetSpent" || name == "WrongFirstData" || name == "Discon") {
                cases.push_back({&doing, Place::State, deed, 1});
            }
            if (name == "WrongFirstData" || name == "Discon" || name == "SeveralFrames") {
                cases.push_back({&doing, Place::Services, deed, 1});
            }
        }
    }
    return cases;
}

class LinkInterrupted : public testing::TestWithParam<Case>, protected test::LinkRig {
  protected:
    void interruptAt(Place place, std::function<void()> deed) {
        switch (place) {
            case Place::Send:
                port.onSend = [deed](const std::string&) { deed(); };
                break;
            case Place::Read:
                port.onRead = deed;
                break;
            case Place::Yield:
                yield.onYield = deed;
                break;
            case Place::Services:
                services.onEvent = [deed](std::int32_t&, std::string&) { deed(); };
                break;
            case Place::State:
                window.onState = [deed](std::int32_t) { deed(); };
                break;
            case Place::Warning:
                window.onWarning = deed;
                break;
        }
    }
    /// Stops the link, and starts it again when so told; the first `skip` calls pass.
    std::function<void()> once(Deed deed, int skip) {
        return [this, deed, skip, calls = std::make_shared<int>(0)] {
            if ((*calls)++ != skip) {
                return;
            }
            stop();
            comTimer.setEnabled(false);
            forget();
            if (deed == Deed::StopAndStart) {
                port.sendError.reset();
                start();
            }
            happened = true;
        };
    }
    bool happened = false;
};

TEST_P(LinkInterrupted, LeavesWithoutTouchingWhatIsNoLongerIts) {
    const Case& row = GetParam();
    bringTo(row.doing->from);
    interruptAt(row.place, once(row.deed, row.call));

    row.doing->act(*this);

    ASSERT_TRUE(happened) << "the call was never made";
    EXPECT_TRUE(plp.isConsistent());
    if (row.deed == Deed::Stop) {
        EXPECT_FALSE(port.open);
        EXPECT_FALSE(plpTimer.enabled()) << "a stopped link has no timer";
        EXPECT_FALSE(comTimer.enabled());
        EXPECT_EQ(window.current, Offline) << "nothing may start the server again";
        EXPECT_THAT(sent(), IsEmpty());
        EXPECT_FALSE(plp.PLP_Send(FrameType::Data, "x"));
        return;
    }
    const bool stoppedAgain = std::string(row.doing->name) == "Stop";
    if (stoppedAgain) {
        EXPECT_EQ(plp.linkState(), LinkState::WaitLink) << "the stop ended the earlier run only";
        return;
    }
    EXPECT_TRUE(port.open);
    EXPECT_TRUE(comTimer.enabled());
    EXPECT_EQ(port.closed, 1);
    EXPECT_THAT(sent(), Each("CONNECT")) << "an earlier run has nothing to say on this one's line";
    services.onEvent = nullptr;
    forget();
    // The new run works as any.
    arrive(FrameType::Connect, 0);
    arrive(FrameType::Data, 1, "FTRAN");
    EXPECT_EQ(plp.linkState(), LinkState::Ready);
    EXPECT_TRUE(plp.isConsistent());
}

INSTANTIATE_TEST_SUITE_P(Everywhere, LinkInterrupted, testing::ValuesIn(allCases()), caseName);

class LinkReentryTest : public testing::Test, protected test::LinkRig {};

TEST_F(LinkReentryTest, AStopUnderAnOpeningThatFailsIsNotUndone) {
    class Slow : public test::ScriptedPort {
      public:
        explicit Slow(PLP& plp) : plp_(plp) {}
        bool OpenPort() override {
            plp_.PLP_Stop();
            throw CommError(kCommInvalidPort, "No such port", "OpenPort");
        }

      private:
        PLP& plp_;
    } slow(plp);
    EXPECT_EQ(plp.PLP_Start(slow, plpTimer), kStartPortNotAccessible);
    EXPECT_TRUE(plp.isConsistent());
    EXPECT_EQ(countTraced("COM", "PLP_STOPPED"), 1U);
}

TEST_F(LinkReentryTest, AStopUnderTheWordOfTooManyErrorsSendsNothingMore) {
    bringTo(LinkState::WaitAck);
    window.onErrorMsg = [this] {
        forget();
        stop();
    };
    spendTheBudget(*this);
    EXPECT_THAT(window.errors, ElementsAre("Too many send errors!"));
    EXPECT_THAT(sent(), IsEmpty());
    EXPECT_FALSE(port.open);
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkReentryTest, APortClosedUnderAWriteIsNoSendError) {
    bringTo(LinkState::Ready);
    port.onSend = [this](const std::string&) {
        stop();
        throw CommError(kCommNotOpen, "Port not open", "Send");
    };
    EXPECT_FALSE(plp.PLP_Send(FrameType::Data, "x"));
    EXPECT_THAT(window.warnings, IsEmpty());
    EXPECT_EQ(window.current, Offline);
}

TEST_F(LinkReentryTest, AFrameUnderWhichTheLinkIsStoppedDoesNotCountAsSent) {
    bringTo(LinkState::Ready);
    port.onSend = [this](const std::string&) {
        port.onSend = nullptr;
        stop();
    };
    EXPECT_FALSE(plp.PLP_Send(FrameType::Data, "x"));
}

TEST_F(LinkReentryTest, APortClosedUnderAReadIsNoReadError) {
    bringTo(LinkState::Ready);
    port.onRead = [this] {
        stop();
        throw CommError(kCommNotOpen, "Port not open", "GetInput");
    };
    arrive("x");
    EXPECT_EQ(countTraced("STATE", ""), 1U);
    EXPECT_EQ(window.current, Offline);
    EXPECT_THAT(window.states, IsEmpty());
}

TEST_F(LinkReentryTest, AStopInsideAStopIsDoneOnce) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t&, std::string&) {
        services.onEvent = nullptr;
        stop();
    };
    stop();
    EXPECT_EQ(port.closed, 1);
    EXPECT_EQ(countTraced("COM", "PLP_STOPPED"), 1U);
}

TEST_F(LinkReentryTest, EveryStopIsTraced) {
    for (int run = 1; run <= 2; ++run) {
        bringTo(LinkState::Ready);
        stop();
        EXPECT_EQ(countTraced("PLP", "PLP stopping"), 1U) << run;
    }
}

TEST_F(LinkReentryTest, AFrameWhoseServiceStopsTheLinkLeavesNoStateToTrace) {
    bringTo(LinkState::Ready);
    services.onEvent = [this](std::int32_t&, std::string&) {
        services.onEvent = nullptr;
        stop();
        trace.entries.clear();
    };
    arrive(FrameType::Data, 2, "x");
    EXPECT_EQ(countTraced("STATE", ""), 1U) << "that of the receive event";
}

TEST_F(LinkReentryTest, AStartInsideAStartIsTheSameLink) {
    port.onSend = [this](const std::string&) {
        port.onSend = nullptr;
        EXPECT_EQ(start(), 1);
    };
    EXPECT_EQ(start(), 1);
    EXPECT_EQ(port.opened, 1);
    EXPECT_TRUE(plp.isConsistent());
    arrive(FrameType::Ack, 0);
    EXPECT_EQ(plp.linkState(), LinkState::Ready);
    stop();
    EXPECT_FALSE(port.open);
}

TEST_F(LinkReentryTest, AStartWhoseFirstWriteStopsTheLinkIsAnOpenError) {
    port.sendError = CommError(kCommFailed, "gone", "Send");
    window.onState = [this](std::int32_t state) {
        if (state == LinkFailed) {
            stop();
        }
    };
    EXPECT_EQ(start(), 6);
    EXPECT_FALSE(port.open);
    EXPECT_FALSE(plpTimer.enabled());
}

TEST_F(LinkReentryTest, ATimeOutDuringAWriteResendsTheWholeFrame) {
    bringTo(LinkState::Ready);
    port.onSend = [this](const std::string&) {
        port.onSend = nullptr;
        plp.PLP_Timeout();
    };
    EXPECT_TRUE(plp.PLP_Send(FrameType::Data, "slow"));
    EXPECT_THAT(sent(), ElementsAre("DATA 1 slow", "DATA 1 slow"));
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkReentryTest, AReceiveEventInsideALinkRequestBringsTheLinkUp) {
    start();
    port.onSend = [this](const std::string&) {
        port.onSend = nullptr;
        arrive(FrameType::Ack, 0);
    };
    time.advance(500ms);
    EXPECT_EQ(plp.linkState(), LinkState::Ready);
    EXPECT_EQ(plpTimer.interval(), 30s);
    EXPECT_TRUE(plp.isConsistent());
}

TEST_F(LinkReentryTest, AReplyFromInsideTheWindowsStateChangeIsKept) {
    bringTo(LinkState::WaitLink);
    window.onState = [this](std::int32_t state) {
        if (state == Connect) {
            plp.PLP_Send(FrameType::Data, "early");
        }
    };
    arrive(FrameType::Ack, 0);
    EXPECT_EQ(plp.linkState(), LinkState::WaitAck);
    EXPECT_TRUE(plp.isConsistent());
    arrive(FrameType::Ack, 1);
    EXPECT_EQ(plp.linkState(), LinkState::Ready);
}

}  // namespace
}  // namespace velmora
