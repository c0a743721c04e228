#include "ui/debug_log_model.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/fake_timers.h"

namespace velmora {
namespace {

using ShowWhat = DebugLogModel::ShowWhat;
using WindowState = DebugLogModel::WindowState;

class RecordingLog : public DebugLogView {
  public:
    void appendLine(const std::string& line, bool polling) override {
        lines.push_back(line);
        newestPolls = polling;
    }
    void clearLog() override { lines.clear(); }
    void categoryChanged(std::size_t index) override { changed.push_back(index); }
    std::vector<std::string> lines;
    bool newestPolls = false;
    std::vector<std::size_t> changed;
};

class DebugLog : public testing::Test {
  protected:
    DebugLog() { model.setShown(true); }
    void clockReads(double seconds) { time.midnightOffset = seconds; }
    std::string lastText() const { return log.lines.back().substr(log.lines.back().find('\t') + 1); }
    int valueOf(const std::string& caption) const {
        for (std::size_t box = 0; box < DebugLogModel::kCategories; ++box) {
            if (model.category(box).caption == caption) {
                return model.category(box).value;
            }
        }
        return -1;
    }

    test::FakeTime time;
    RecordingLog log;
    DebugLogModel model{time, log};
};

TEST_F(DebugLog, APollingLineIsStampedAsAnyOtherAndToldApart) {
    clockReads(100);
    model.startlog();
    clockReads(101.5);
    model.addPollingLine("text");
    EXPECT_EQ(log.lines.back(), "1.50\ttext");
    EXPECT_TRUE(log.newestPolls);
    model.addline("text");
    EXPECT_FALSE(log.newestPolls);
}

struct TimeRow {
    const char* name;
    double start;
    double now;
    const char* column;
};

class TimeColumn : public DebugLog, public testing::WithParamInterface<TimeRow> {};

TEST_P(TimeColumn, CountsFromTheRoundedStart) {
    clockReads(GetParam().start);
    model.startlog();
    clockReads(GetParam().now);
    model.addline("text");
    EXPECT_EQ(log.lines.back(), std::string(GetParam().column) + "\ttext");
}

INSTANTIATE_TEST_SUITE_P(Clocks, TimeColumn,
                         testing::Values(TimeRow{"StartIsRoundedDown", 100.4, 112.9, "12.90"},
                                         TimeRow{"StartIsRoundedUp", 100.6, 100.7, "-0.30"},
                                         TimeRow{"HalfGoesToTheEvenSecond", 100.5, 101, "1.00"},
                                         TimeRow{"Hundredths", 100, 100.014, "0.01"},
                                         TimeRow{"LongLog", 0, 12345.678, "12345.68"},
                                         TimeRow{"AfterMidnight", 86'390, 10, "-86380.00"},
                                         TimeRow{"NearlyNought", 100, 99.999, "0.00"}),
                         [](const auto& row) { return row.param.name; });

TEST_F(DebugLog, ClearingWritesTheStartBannerAsTheFirstLine) {
    model.addline("old");
    model.cbClear_Click();
    ASSERT_EQ(log.lines.size(), 1U);
    EXPECT_EQ(lastText(), "=================== start logging ===================");
}

TEST_F(DebugLog, MinimisingWritesTheStopBannerAndStopsTheLog) {
    model.setWindowState(WindowState::Minimised);
    EXPECT_EQ(lastText(), "================== logging stopped ==================");
    EXPECT_FALSE(model.logging());
    model.setWindowState(WindowState::Normal);
    EXPECT_EQ(lastText(), "=================== start logging ===================");
    EXPECT_TRUE(model.logging());
}

TEST_F(DebugLog, MaximisingWritesTheStopBannerAlthoughTheLogGoesOn) {
    model.setWindowState(WindowState::Maximised);
    EXPECT_EQ(lastText(), "================== logging stopped ==================");
    EXPECT_TRUE(model.logging());
}

TEST_F(DebugLog, TheSameWindowStateTwiceWritesOneBanner) {
    model.setWindowState(WindowState::Minimised);
    model.setWindowState(WindowState::Minimised);
    EXPECT_EQ(log.lines.size(), 1U);
}

TEST_F(DebugLog, LogToDiskChangesTheStopBannerOnly) {
    model.setLogToDisk(true);
    EXPECT_TRUE(log.lines.empty());
    model.setWindowState(WindowState::Minimised);
    EXPECT_EQ(lastText(), "==== logging stopped (disk log is still active) =====");
    model.setWindowState(WindowState::Normal);
    EXPECT_EQ(lastText(), "=================== start logging ===================");
}

TEST_F(DebugLog, LogsOnlyWhileShown) {
    model.setShown(false);
    EXPECT_FALSE(model.logging());
    EXPECT_TRUE(model.toggleShown());
    EXPECT_TRUE(model.logging());
    EXPECT_FALSE(model.toggleShown());
    EXPECT_FALSE(model.shown());
}

TEST_F(DebugLog, AllBoxesAreOffAndHiddenAtFirst) {
    for (std::size_t box = 0; box < DebugLogModel::kCategories; ++box) {
        EXPECT_EQ(model.category(box).value, DebugLogModel::kOff);
        EXPECT_FALSE(model.category(box).visible);
    }
}

TEST_F(DebugLog, CategoriesGetBoxesAsTheyAreMetAndDataAndErrorTheirOwn) {
    for (const char* met : {"ERROR", "PLP", "STATE", "PLP", "DATA"}) {
        model.categoryEnabled(met);
    }
    EXPECT_EQ(model.category(0).caption, "PLP");
    EXPECT_EQ(model.category(1).caption, "DATA");
    EXPECT_EQ(model.category(2).caption, "ERROR");
    EXPECT_EQ(model.category(3).caption, "STATE");
    EXPECT_TRUE(model.category(3).visible);
    EXPECT_FALSE(model.category(4).visible);
    EXPECT_EQ(log.changed, (std::vector<std::size_t>{2, 0, 3, 1}));
}

TEST_F(DebugLog, MoreCategoriesThanBoxesShowInEverythingOnly) {
    for (int number = 0; number < 20; ++number) {
        EXPECT_TRUE(model.categoryEnabled("C" + std::to_string(number)));
    }
    model.obShowWhat_Click(ShowWhat::Custom);
    EXPECT_FALSE(model.categoryEnabled("C19"));
    EXPECT_FALSE(model.category(DebugLogModel::kDataBox).visible);
}

TEST_F(DebugLog, DataModeWantsDataOnly) {
    model.obShowWhat_Click(ShowWhat::Data);
    EXPECT_TRUE(model.categoryEnabled("DATA"));
    EXPECT_FALSE(model.categoryEnabled("COM"));
    EXPECT_FALSE(model.categoryEnabled("ERROR"));
}

TEST_F(DebugLog, CustomModeWantsTheBoxesThatAreOn) {
    model.categoryEnabled("COM");
    model.obShowWhat_Click(ShowWhat::Custom);
    EXPECT_FALSE(model.categoryEnabled("COM"));
    model.chkShowWhat_Click(0, true);
    EXPECT_TRUE(model.categoryEnabled("COM"));
    model.chkShowWhat_Click(0, false);
    EXPECT_FALSE(model.categoryEnabled("COM"));
}

TEST_F(DebugLog, BoxesLookActiveInCustomOnly) {
    model.categoryEnabled("COM");
    model.categoryEnabled("PLP");
    model.chkShowWhat_Click(0, true);
    EXPECT_EQ(valueOf("COM"), DebugLogModel::kInactive);
    model.obShowWhat_Click(ShowWhat::Custom);
    EXPECT_EQ(valueOf("COM"), DebugLogModel::kOn);
    EXPECT_EQ(valueOf("PLP"), DebugLogModel::kOff);
    model.obShowWhat_Click(ShowWhat::Data);
    EXPECT_EQ(valueOf("COM"), DebugLogModel::kInactive);
    model.obShowWhat_Click(ShowWhat::Everything);
    EXPECT_EQ(valueOf("COM"), DebugLogModel::kInactive);
    EXPECT_EQ(valueOf("PLP"), DebugLogModel::kOff);
}

TEST_F(DebugLog, AClickOnABoxThatIsNotThereIsNothing) {
    model.chkShowWhat_Click(DebugLogModel::kCategories, true);
    EXPECT_TRUE(log.changed.empty());
}

}  // namespace
}  // namespace velmora
