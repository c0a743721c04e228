#include "organiser/progress.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>

namespace velmora {
namespace {

TEST(ProgressBarTest, LastLineTellsTheWhole) {
    std::ostringstream out;
    ProgressBar bar(out, false);
    bar.begin("Saving MEMO", 200, "records");
    bar.advance(100);
    bar.finish();
    EXPECT_EQ(out.str(), "Saving MEMO  [###############---------------]  50 %  100 of 200 records\n");
}

TEST(ProgressBarTest, TerminalSeesOneLineDrawnOverItself) {
    std::ostringstream out;
    ProgressBar bar(out, true);
    bar.begin("Loading", 2, "bytes");
    bar.advance(1);
    bar.advance(2);
    bar.finish();
    EXPECT_EQ(out.str().front(), '\r');
    EXPECT_EQ(out.str().find('\n'), out.str().size() - 1);
    EXPECT_NE(out.str().find(" 50 %"), std::string::npos);
    EXPECT_NE(out.str().find("100 %  2 of 2 bytes"), std::string::npos);
}

TEST(ProgressBarTest, UnknownTotalJustCounts) {
    std::ostringstream out;
    ProgressBar bar(out, false);
    bar.begin("Loading MEMO", 0, "records");
    bar.advance(7);
    bar.finish();
    EXPECT_EQ(out.str(), "Loading MEMO  7 records\n");
}

TEST(ProgressBarTest, MoreThanTheTotalIsTheTotal) {
    std::ostringstream out;
    ProgressBar bar(out, false);
    bar.begin("x", 2, "bytes");
    bar.advance(5);
    bar.finish();
    EXPECT_NE(out.str().find("100 %  2 of 2"), std::string::npos);
}

TEST(ProgressBarTest, FinishWithoutBeginSaysNothing) {
    std::ostringstream out;
    ProgressBar bar(out, true);
    bar.advance(1);
    bar.finish();
    EXPECT_EQ(out.str(), "");
}

TEST(ProgressBarTest, ScopeEndsTheLineAlsoOnAFailure) {
    std::ostringstream out;
    ProgressBar bar(out, true);
    try {
        const ProgressScope scope(bar, "x", 1, "bytes");
        throw std::runtime_error("lost");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(out.str().back(), '\n');
    }
}

}  // namespace
}  // namespace velmora
