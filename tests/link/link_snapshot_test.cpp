#include "link/link_snapshot.h"

#include <gtest/gtest.h>

#include "link/plp.h"

namespace velmora {
namespace {

using std::chrono::milliseconds;

/// A link that runs, as it should be in a state.
LinkSnapshot running(LinkState state) {
    LinkSnapshot link;
    link.state = state;
    link.hasPort = link.hasTimer = link.served = link.polled = true;
    if (state == LinkState::WaitLink || state == LinkState::WaitAck) {
        link.wait = kAnswerTime;
    }
    return link;
}

constexpr LinkState kStates[] = {LinkState::Idle, LinkState::WaitLink, LinkState::Linking, LinkState::Ready,
                                 LinkState::WaitAck};

/// Whether it still fits together after this change.
template <typename Change>
bool fitsAfter(LinkSnapshot link, Change change) {
    change(link);
    return fitsTogether(link);
}

TEST(LinkSnapshot, EveryStateFitsAsItShouldBe) {
    for (const LinkState state : kStates) {
        EXPECT_TRUE(fitsTogether(running(state))) << static_cast<int>(state);
    }
}

TEST(LinkSnapshot, AStoppedLinkIsIdleAndHasNoTimer) {
    EXPECT_TRUE(fitsTogether({}));
    EXPECT_FALSE(fitsAfter({}, [](LinkSnapshot& link) { link.hasTimer = true; }));
    EXPECT_FALSE(fitsAfter({}, [](LinkSnapshot& link) { link.state = LinkState::Ready; }));
}

TEST(LinkSnapshot, ALinkThatRunsHasATimer) {
    EXPECT_FALSE(fitsAfter(running(LinkState::Idle), [](LinkSnapshot& link) { link.hasTimer = false; }));
}

TEST(LinkSnapshot, NumbersStayInTheirRange) {
    for (int LinkSnapshot::*const number :
         {&LinkSnapshot::sendSequence, &LinkSnapshot::receiveSequence, &LinkSnapshot::resendBudget}) {
        const int last = number == &LinkSnapshot::resendBudget ? 4 : 7;
        const auto fitsWith = [&](int value) {
            return fitsAfter(running(LinkState::Ready), [&](LinkSnapshot& link) { link.*number = value; });
        };
        EXPECT_TRUE(fitsWith(0));
        EXPECT_TRUE(fitsWith(last));
        EXPECT_FALSE(fitsWith(-1));
        EXPECT_FALSE(fitsWith(last + 1));
    }
}

TEST(LinkSnapshot, TheLineIsPolledWhileTheServerRuns) {
    LinkSnapshot link = running(LinkState::Ready);
    link.polled = false;
    EXPECT_FALSE(fitsTogether(link));
    link.served = false;
    EXPECT_TRUE(fitsTogether(link)) << "nobody wants it polled";
}

TEST(LinkSnapshot, WhatWaitsForNoAnswerHasItsTimerOff) {
    for (const LinkState state : {LinkState::Idle, LinkState::Linking}) {
        EXPECT_FALSE(fitsAfter(running(state), [](LinkSnapshot& link) { link.wait = kAnswerTime; }));
    }
}

TEST(LinkSnapshot, ALinkWhosePortFailedWaitsForNothing) {
    for (const LinkState state : kStates) {
        LinkSnapshot link = running(state);
        link.portFailed = true;
        link.wait.reset();
        EXPECT_TRUE(fitsTogether(link)) << static_cast<int>(state);
        link.wait = kAnswerTime;
        EXPECT_FALSE(fitsTogether(link)) << static_cast<int>(state);
    }
}

TEST(LinkSnapshot, AnAnswerIsWaitedForAtLeastItsTime) {
    for (const LinkState state : {LinkState::WaitLink, LinkState::WaitAck}) {
        const auto fitsWaiting = [&](std::optional<milliseconds> wait) {
            return fitsAfter(running(state), [&](LinkSnapshot& link) { link.wait = wait; });
        };
        EXPECT_TRUE(fitsWaiting(kAnswerTime + milliseconds(80))) << "while bytes leave";
        EXPECT_FALSE(fitsWaiting(kAnswerTime - milliseconds(1)));
        EXPECT_FALSE(fitsWaiting(std::nullopt));
    }
}

TEST(LinkSnapshot, AReadyLinkWaitsForTheSilenceOrNoMore) {
    const auto fitsWaiting = [](milliseconds wait) {
        return fitsAfter(running(LinkState::Ready), [&](LinkSnapshot& link) { link.wait = wait; });
    };
    EXPECT_TRUE(fitsWaiting(kSilenceTime));
    EXPECT_FALSE(fitsWaiting(kSilenceTime - milliseconds(1)));
    EXPECT_FALSE(fitsWaiting(kAnswerTime));
}

}  // namespace
}  // namespace velmora
