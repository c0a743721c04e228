#include "capture/recent_trace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "capture/capture_cases.h"
#include "support/fake_timers.h"
#include "support/recording_trace.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using namespace std::string_literals;

class RecentTraceTest : public testing::Test {
  protected:
    void keep(std::size_t entries) {
        recent.keep(
            time, [this] { return state; }, entries);
    }

    test::FakeTime time;
    test::RecordingTrace next;
    RecentTrace recent{next};
    LinkState state = LinkState::Idle;
};

TEST_F(RecentTraceTest, EntriesArePassedOnAndNotKeptUntilTold) {
    recent.trace("COM", "open port", "COM5");
    EXPECT_THAT(next.entries, SizeIs(1));
    EXPECT_EQ(next.entries[0].data, "COM5");
    EXPECT_TRUE(recent.lines().empty());
    keep(2);
    recent.trace("COM", "close port", {});
    EXPECT_THAT(next.entries, SizeIs(2));
    EXPECT_THAT(recent.lines(), SizeIs(1));
}

TEST_F(RecentTraceTest, TheNewestAreKeptInTheirOrder) {
    keep(2);
    for (const char* label : {"one", "two", "three"}) {
        recent.trace("PLP", label, {});
    }
    EXPECT_THAT(recent.lines(), ElementsAre(HasSubstr("\ttwo"), HasSubstr("\tthree")));
}

TEST_F(RecentTraceTest, ALineReadsAsInTheTraceWithItsTimeOfDay) {
    keep(5);
    time.midnightOffset = 70'775.029;
    recent.trace("COM", "open port", "COM5 9600,N,8,1");
    state = LinkState::Ready;
    recent.trace("STATE", {}, {});
    state = LinkState::Idle;
    EXPECT_THAT(recent.lines(),
                ElementsAre("19:39:35.02\topen port \tCOM5 9600,N,8,1", "19:39:35.02\t\tStatus=ready     "));
}

TEST_F(RecentTraceTest, ContentsOfDataFramesAreMasked) {
    keep(5);
    recent.trace("COM,DATA", "recv", test::dataFrame(1, "\x02my diary"));
    recent.trace("COM,DATA", "send", test::dataFrame(2, "your diary"));
    recent.trace("COM,DATA", "resend", test::dataFrame(2, "your diary"));
    recent.trace("COM,DATA", "recv", "diary that makes no frame");
    const auto lines = recent.lines();
    EXPECT_THAT(lines[0], HasSubstr("recv \t1 DATA\tlen=9\t<02>xxxxxxxx"));
    EXPECT_THAT(lines[1], HasSubstr("send \t2 DATA\tlen=10\txxxxxxxxxx"));
    EXPECT_THAT(lines, Each(Not(HasSubstr("diary"))));
    EXPECT_THAT(next.entries[0].data, HasSubstr("diary")) << "the trace itself stays as it is";
}

TEST_F(RecentTraceTest, AServiceThatThereIsNoneOfMayBeContents) {
    keep(5);
    recent.trace("PLP", "PLP-->FTRAN", {});
    recent.trace("PLP", "PLP-->DEAR DIARY", {});
    EXPECT_THAT(recent.lines(), ElementsAre(HasSubstr("PLP-->FTRAN"), HasSubstr("PLP-->xxxxxxxxxx")));
}

}  // namespace
}  // namespace velmora
