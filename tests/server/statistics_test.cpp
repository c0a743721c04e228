#include "server/statistics.h"

#include <gtest/gtest.h>

#include "link/server_window.h"
#include "support/recording_view.h"

namespace velmora {
namespace {

struct StatisticsRow {
    const char* name;
    const char* label;
    int amount;
    const char* after;
};

class ByteCount : public testing::TestWithParam<StatisticsRow> {};

TEST_P(ByteCount, IsCountedInTheLabel) {
    EXPECT_EQ(addToByteCount(GetParam().label, static_cast<std::int16_t>(GetParam().amount)),
              GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Labels, ByteCount,
    testing::Values(StatisticsRow{"First", "0", 12, "12"}, StatisticsRow{"Grouped", "999", 1, "1,000"},
                    StatisticsRow{"GroupedIsRead", "12,345", 5, "12,350"},
                    StatisticsRow{"PastAMillion", "999,000", 2000, "1.00Mb"},
                    StatisticsRow{"ExactlyAMillion", "999,999", 1, "1.00Mb"},
                    StatisticsRow{"JustBelow", "999,998", 1, "999,999"},
                    StatisticsRow{"SmallAdditionIsLost", "1.00Mb", 4000, "1.00Mb"},
                    StatisticsRow{"LargestLostAddition", "1.00Mb", 4999, "1.00Mb"},
                    StatisticsRow{"HalfAHundredthCounts", "1.00Mb", 5000, "1.01Mb"},
                    StatisticsRow{"OneThird", "1.29Mb", 5000, "1.30Mb"},
                    StatisticsRow{"Large", "1.29Mb", 32767, "1.32Mb"},
                    StatisticsRow{"NoGroupingInMegabytes", "12345.67Mb", 10000, "12345.68Mb"},
                    StatisticsRow{"KilobytesAreRead", "12kb", 1, "12,001"},
                    StatisticsRow{"KilobytesWithDecimals", "1.5kb", 0, "1,500"},
                    StatisticsRow{"KilobytesPastAMillion", "999.9kb", 100, "1.00Mb"},
                    StatisticsRow{"OtherCaseIsNoUnit", "3MB", 1, "4"},
                    StatisticsRow{"NoNumber", "bytes", 7, "7"}, StatisticsRow{"Empty", "", 7, "7"},
                    StatisticsRow{"OnlyTheUnit", "Mb", 7, "7"},
                    StatisticsRow{"NegativeAmount", "100", -1, "99"},
                    StatisticsRow{"BelowNought", "0", -1500, "-1,500"},
                    StatisticsRow{"BackBelowAMillion", "1.00Mb", -1, "999,999"},
                    StatisticsRow{"SmallestAmount", "0", -32768, "-32,768"}),
    [](const auto& row) { return row.param.name; });

TEST(FileCount, IsGroupedAndNeverInMegabytes) {
    EXPECT_EQ(addToFileCount("0", 1), "1");
    EXPECT_EQ(addToFileCount("999", 1), "1,000");
    EXPECT_EQ(addToFileCount("999,999", 1), "1,000,000");
}

TEST(Statistics, ALabelOfAnyTextOverflowsNothing) {
    EXPECT_EQ(addToFileCount("1E300", 1), "1,000,000,000,000,001");
    EXPECT_EQ(addToByteCount("9E999Mb", 1), "1000000000.00Mb");
    EXPECT_EQ(addToByteCount("-1E300", 0), "-1,000,000,000,000,000");
}

TEST(Statistics, EachKindHasItsCounter) {
    test::RecordingView view;
    SetStats(view, StatsBytesReceived, 1);
    SetStats(view, StatsBytesSent, 2);
    SetStats(view, StatsFilesReceived, 3);
    SetStats(view, StatsFilesSent, 4);
    EXPECT_EQ(view.stats[StatsLabel::BytesRecv], "1");
    EXPECT_EQ(view.stats[StatsLabel::BytesSent], "2");
    EXPECT_EQ(view.stats[StatsLabel::FilesRecv], "3");
    EXPECT_EQ(view.stats[StatsLabel::FilesSent], "4");
}

TEST(Statistics, ResetSetsAllToNoughtWhateverTheAmount) {
    test::RecordingView view;
    for (auto& [label, text] : view.stats) {
        text = "1.00Mb";
    }
    SetStats(view, StatsReset, 99);
    for (const auto& [label, text] : view.stats) {
        EXPECT_EQ(text, "0");
    }
}

TEST(Statistics, OtherKindsDoNothing) {
    test::RecordingView view;
    for (const std::int32_t kind : {-1, 5, 1'000'000}) {
        SetStats(view, kind, 1);
    }
    for (const auto& [label, text] : view.stats) {
        EXPECT_EQ(text, "0");
    }
}

}  // namespace
}  // namespace velmora
