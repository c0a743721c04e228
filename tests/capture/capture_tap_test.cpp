#include "capture/capture_tap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "capture/capture_cases.h"
#include "support/fake_timers.h"
#include "support/recording_trace.h"

namespace velmora {
namespace {

using testing::ElementsAre;

class CaptureTapTest : public testing::Test {
  protected:
    CaptureTapTest() {
        tap.listenTo([this] { return state; }, [] { return test::usualPort(); });
        tap.record(time, target);
        tap.portOpened(3);
    }

    test::FakeTime time;
    test::RecordingTrace trace;
    test::RecordingTarget target;
    LinkState state = LinkState::Idle;
    CaptureTap tap{trace};
};

TEST_F(CaptureTapTest, RecordsThePortAndWhatPassesOverIt) {
    tap.portWriting("out");
    tap.portRead("in");
    tap.portClosing(3);
    EXPECT_EQ(target.capture.ports, std::vector<CapturedPort>{test::usualPort()});
    EXPECT_THAT(target.lines(), ElementsAre("send out", "recv in", "note port closed"));
}

TEST_F(CaptureTapTest, NotesEachStateOfTheLinkOnceAndNotTheTurnsOfAConversation) {
    for (const LinkState next : {LinkState::Idle, LinkState::WaitLink, LinkState::WaitLink, LinkState::Ready,
                                 LinkState::WaitAck, LinkState::Ready, LinkState::Idle}) {
        state = next;
        tap.trace("STATE", {}, {});
    }
    EXPECT_THAT(target.lines(),
                ElementsAre("note state: wait link", "note state: ready", "note state: idle"));
}

TEST_F(CaptureTapTest, NotesErrors) {
    tap.trace("COM,ERROR", "ERROR", "8002: Invalid\nport");
    tap.trace("COM,ERROR", "ERROR -1 gone", {});
    tap.trace("PLP", "PLP_ERROR", {});
    tap.trace("PLP", "PLP INITLINK", {});
    tap.trace("COM,DATA", "send", "x");
    EXPECT_THAT(target.lines(),
                ElementsAre("note ERROR 8002: Invalid<0A>port", "note ERROR -1 gone",
                            "note error: a frame was refused, or its answer did not come in time"));
}

TEST_F(CaptureTapTest, TheTraceGetsAllEntries) {
    tap.trace("COM,ERROR", "ERROR", "x");
    tap.stop();
    tap.trace("STATE", {}, {});
    EXPECT_EQ(trace.entries.size(), 2U);
}

TEST_F(CaptureTapTest, RecordsNothingOnceItIsStopped) {
    tap.portRead("rest");
    tap.stop();
    tap.portOpened(3);
    tap.portRead("in");
    tap.portWriting("out");
    tap.trace("PLP", "PLP_ERROR", {});
    tap.portClosing(3);
    EXPECT_THAT(target.lines(), ElementsAre("recv rest"));
    EXPECT_EQ(target.capture.ports.size(), 1U);
}

}  // namespace
}  // namespace velmora
