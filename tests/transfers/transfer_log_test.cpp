#include "transfers/transfer_log.h"

#include <gtest/gtest.h>

#include "support/recording_trace.h"
#include "support/recording_window.h"
#include "support/simple_names.h"

namespace velmora {
namespace {

using Texts = std::vector<std::pair<std::string, std::string>>;

class TransferLogTest : public testing::Test {
  protected:
    test::RecordingWindow window;
    test::RecordingTrace trace;
    test::SimplePathRules rules;
    TransferLog log{window, trace, rules};
};

TEST_F(TransferLogTest, ANoteIsALineAndAnEntry) {
    log.note("Memo.odb is here");
    EXPECT_EQ(window.reports, std::vector<std::string>{"Memo.odb is here"});
    ASSERT_EQ(trace.entries.size(), 1U);
    EXPECT_EQ(trace.entries[0].categories, "PLP");
    EXPECT_EQ(trace.entries[0].data, "Memo.odb is here");
    EXPECT_TRUE(window.warnings.empty());
    EXPECT_EQ(window.lineDowns, 0);
}

TEST_F(TransferLogTest, AWarningIsShownAndItsReasonTraced) {
    log.warn("It went wrong!", RunTimeError(ErrorNumber::PathFileAccess, "/closed"));
    EXPECT_EQ(window.warnings, (Texts{{"It went wrong!", "Path/file access error"}}));
    ASSERT_EQ(trace.entries.size(), 1U);
    EXPECT_EQ(trace.entries[0].categories, "COM,ERROR");
    EXPECT_EQ(trace.entries[0].data, "75: Path/file access error: /closed");
}

TEST_F(TransferLogTest, ABrokenSaveIsReportedAndShownAsLostContact) {
    log.saveBrokeOff({"/psion/Memo.odb", 12, ""});
    EXPECT_EQ(window.reports, std::vector<std::string>{"Memo.odb is incomplete: 12 bytes arrived."});
    EXPECT_EQ(trace.entries.size(), 1U);
    EXPECT_EQ(window.lineDowns, 1);
}

}  // namespace
}  // namespace velmora
