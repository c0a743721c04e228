#include "organiser/progress.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>

#include "support/fake_timers.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

class ProgressBarTest : public testing::Test {
  protected:
    /// What stands in the line on the screen.
    std::string shown() const { return out.str().substr(out.str().rfind('\r') + 1); }

    test::FakeTime time;
    std::ostringstream out;
};

TEST_F(ProgressBarTest, LastLineTellsTheWhole) {
    ProgressBar bar(out, false, time);
    bar.begin("Saving MEMO", 200, "records");
    bar.advance(100);
    bar.finish();
    EXPECT_EQ(out.str(), "Saving MEMO  [######------]  50 %  100 of 200 records\n");
}

TEST_F(ProgressBarTest, TerminalSeesOneLineDrawnOverItself) {
    ProgressBar bar(out, true, time);
    bar.begin("Loading", 2, "bytes");
    bar.advance(1);
    bar.advance(2);
    bar.finish();
    EXPECT_EQ(out.str().front(), '\r');
    EXPECT_EQ(out.str().find('\n'), out.str().size() - 1);
    EXPECT_NE(out.str().find(" 50 %"), std::string::npos);
    EXPECT_NE(out.str().find("100 %  2 of 2 bytes"), std::string::npos);
}

TEST_F(ProgressBarTest, ATerminalSeesHowFastItGoesAndForHowLong) {
    ProgressBar bar(out, true, time);
    bar.begin("Saving MEMO", 200, "records");
    time.advance(900ms);
    bar.advance(10);
    EXPECT_EQ(shown(), "Saving MEMO  [------------]  5 %  10 of 200 records") << "too early to tell";
    time.advance(1100ms);
    bar.advance(20);
    EXPECT_EQ(shown(), "Saving MEMO  [#-----------]  10 %  20 of 200 records, 10/s, 0:18 left");
    time.advance(18'000ms);
    bar.advance(200);
    bar.finish();
    EXPECT_EQ(shown(), "Saving MEMO  [############]  100 %  200 of 200 records, 10/s           \n")
        << "nothing is left of the longer line";
}

TEST_F(ProgressBarTest, WithoutATotalThereIsARateOnly) {
    ProgressBar bar(out, true, time);
    bar.begin("Loading MEMO", 0, "records");
    time.advance(2'000ms);
    bar.advance(0);
    EXPECT_EQ(shown(), "Loading MEMO  0 records");
    bar.advance(64);
    EXPECT_EQ(shown(), "Loading MEMO  64 records, 32/s");
}

TEST_F(ProgressBarTest, APipeIsToldNoTimes) {
    ProgressBar bar(out, false, time);
    bar.begin("Saving MEMO", 200, "records");
    time.advance(5'000ms);
    bar.advance(100);
    EXPECT_EQ(out.str(), "");
    bar.finish();
    EXPECT_EQ(out.str(), "Saving MEMO  [######------]  50 %  100 of 200 records\n");
}

TEST_F(ProgressBarTest, UnknownTotalJustCounts) {
    ProgressBar bar(out, false, time);
    bar.begin("Loading MEMO", 0, "records");
    bar.advance(7);
    bar.finish();
    EXPECT_EQ(out.str(), "Loading MEMO  7 records\n");
}

TEST_F(ProgressBarTest, MoreThanTheTotalIsTheTotal) {
    ProgressBar bar(out, false, time);
    bar.begin("x", 2, "bytes");
    bar.advance(5);
    bar.finish();
    EXPECT_NE(out.str().find("100 %  2 of 2"), std::string::npos);
}

TEST_F(ProgressBarTest, FinishWithoutBeginSaysNothing) {
    ProgressBar bar(out, true, time);
    bar.advance(1);
    bar.finish();
    EXPECT_EQ(out.str(), "");
}

TEST_F(ProgressBarTest, ScopeEndsTheLineAlsoOnAFailure) {
    ProgressBar bar(out, true, time);
    try {
        const ProgressScope scope(bar, "x", 1, "bytes");
        throw std::runtime_error("lost");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(out.str().back(), '\n');
    }
}

}  // namespace
}  // namespace velmora
