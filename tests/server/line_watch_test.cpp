#include "server/line_watch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "link/frames.h"
#include "serial/bit_sampling.h"
#include "support/fake_timers.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A link that asks every half second, and what comes meanwhile.
class LineWatchTest : public testing::Test {
  protected:
    LineWatchTest() {
        crc.load_CRCtable();
        request = buildFrame(crc, FrameType::Connect, 0, {});
        watch.portOpened(1);
    }
    /// Half seconds in each of which these bytes come and a link request goes out.
    void hear(const std::string& bytes, int times) {
        for (int i = 0; i < times; ++i) {
            time.advance(500ms);
            if (!bytes.empty()) {
                watch.portRead(bytes);
            }
            watch.portWriting(request);
        }
    }

    Crc crc;
    test::FakeTime time;
    LinkState state = LinkState::WaitLink;
    std::string settings = "9600,N,8,1";
    std::string request;
    std::vector<std::string> told;
    LineWatch watch{{crc, time, [this] { return state; }, [this] { return settings; }, "Find out why.",
                     [this](const std::string& text2, const std::string& text3) {
                         told.push_back(text2 + " " + text3);
                     }}};
};

TEST_F(LineWatchTest, BytesOfAnotherRateAreToldAfterTwoSecondsAndOnce) {
    const std::string slow = sampledValues(request, LineSettings{1200}, LineSettings());
    hear(slow, 4);
    EXPECT_THAT(told, IsEmpty());
    hear(slow, 40);
    EXPECT_THAT(told, ElementsAre("Bytes come that make no frame. The Organiser uses 1200 baud."));
    watch.portClosing(1);
}

TEST_F(LineWatchTest, AnotherCauseIsToldAnew) {
    hear("\x15", 6);
    hear(std::string(300, '\0'), 2);
    EXPECT_THAT(
        told, ElementsAre("Bytes come that make no frame. The Organiser speaks, but not the protocol of the "
                          "server.",
                          "Bytes come that make no frame. Only nulls come: the line is held low."));
}

TEST_F(LineWatchTest, ASparkIsNotTold) {
    hear("~", 1);
    hear("", 10);
    hear("~", 1);
    hear("", 10);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(LineWatchTest, AFrameEndsTheSuspicion) {
    hear("~~~~", 4);
    hear(request, 1);
    hear("~~~~", 4);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(LineWatchTest, WhatComesOverALinkIsNotJudged) {
    state = LinkState::Ready;
    hear("~~~~", 20);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(LineWatchTest, AMinuteOfSilenceIsToldOnceForEachOpening) {
    hear("", 119);
    EXPECT_THAT(told, IsEmpty());
    hear("", 200);
    EXPECT_THAT(told, ElementsAre("Nothing has come for a minute. Find out why."));
    watch.portOpened(2);
    hear("", 119);
    EXPECT_EQ(told.size(), 1U);
    hear("", 1);
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(LineWatchTest, SilenceAfterAWordIsNone) {
    hear(request, 1);
    hear("", 400);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(LineWatchTest, ALineThatNeverFallsSilentIsJudgedByItsLatestBytes) {
    settings = "not a mode";
    hear(std::string(1000, '~'), 100);
    EXPECT_THAT(told,
                ElementsAre("Bytes come that make no frame. The Organiser speaks, but not the protocol of "
                            "the server."));
}

}  // namespace
}  // namespace velmora
