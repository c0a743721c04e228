#include "ui/statistics.h"

#include <gtest/gtest.h>

#include "link/server_window.h"
#include "support/recording_view.h"

namespace velmora {
namespace {

struct Row {
    const char* name;
    const char* label;
    int amount;
    const char* after;
};

class ByteCount : public testing::TestWithParam<Row> {};

TEST_P(ByteCount, IsCountedInTheLabel) {
    EXPECT_EQ(addToByteCount(GetParam().label, static_cast<std::int16_t>(GetParam().amount)),
              GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Labels, ByteCount,
    testing::Values(
        Row{"First", "0", 12, "12"}, Row{"Grouped", "999", 1, "1,000"},
        Row{"GroupedIsRead", "12,345", 5, "12,350"}, Row{"PastAMillion", "999,000", 2000, "1.00Mb"},
        Row{"ExactlyAMillion", "999,999", 1, "1.00Mb"}, Row{"JustBelow", "999,998", 1, "999,999"},
        Row{"SmallAdditionIsLost", "1.00Mb", 4000, "1.00Mb"},
        Row{"LargestLostAddition", "1.00Mb", 4999, "1.00Mb"},
        Row{"HalfAHundredthCounts", "1.00Mb", 5000, "1.01Mb"}, Row{"OneThird", "1.29Mb", 5000, "1.30Mb"},
        Row{"Large", "1.29Mb", 32767, "1.32Mb"},
        Row{"NoGroupingInMegabytes", "12345.67Mb", 10000, "12345.68Mb"},
        Row{"KilobytesAreRead", "12kb", 1, "12,001"}, Row{"KilobytesWithDecimals", "1.5kb", 0, "1,500"},
        Row{"KilobytesPastAMillion", "999.9kb", 100, "1.00Mb"}, Row{"OtherCaseIsNoUnit", "3MB", 1, "4"},
        Row{"NoNumber", "bytes", 7, "7"}, Row{"Empty", "", 7, "7"}, Row{"OnlyTheUnit", "Mb", 7, "7"},
        Row{"NegativeAmount", "100", -1, "99"}, Row{"BelowNought", "0", -1500, "-1,500"},
        Row{"BackBelowAMillion", "1.00Mb", -1, "999,999"}, Row{"SmallestAmount", "0", -32768, "-32,768"}),
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
