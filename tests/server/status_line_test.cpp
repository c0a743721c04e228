#include "server/status_line.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

struct StatusLineRow {
    const char* name;
    const char* line1;
    const char* line2;
    const char* status;
};

class StatusLine : public testing::TestWithParam<StatusLineRow> {};

TEST_P(StatusLine, ReadsAsOneLine) {
    EXPECT_EQ(joinDisplayLines(GetParam().line1, GetParam().line2), GetParam().status);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, StatusLine,
    testing::Values(
        StatusLineRow{"BlankLine2", "Waiting for link", " ", "Waiting for link"},
        StatusLineRow{"EmptyLine1", "", "  Connecting...", "Connecting..."},
        StatusLineRow{"Nothing", " ", "", ""},
        StatusLineRow{"SmallLetterGoesOn", "    Sending", "   directory", "Sending directory"},
        StatusLineRow{"FullStopBetween", "Server Offline", "Click Start!", "Server Offline. Click Start!"},
        StatusLineRow{"SentenceEnded", "Server was stopped by Organiser!", "Click Start!",
                      "Server was stopped by Organiser! Click Start!"},
        StatusLineRow{"WholeLongTexts", "No port selected", "The server could not find a free serial port!",
                      "No port selected. The server could not find a free serial port!"}),
    [](const auto& row) { return row.param.name; });

TEST(StatusLineOfFile, NamesTheFileBehindTheActivity) {
    EXPECT_EQ(joinFileName(" Uploading file", "  Memo.odb"), "Uploading file: Memo.odb");
}

}  // namespace
}  // namespace velmora
