#include "server/message_lines.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(MessageLines, NothingIsVisibleAtFirst) {
    const MessageLines messages;
    EXPECT_FALSE(messages.warning);
    for (const MessageLine& line : messages.lines) {
        EXPECT_FALSE(line.visible);
    }
    EXPECT_TRUE(messages.lines[2].twoLines);
}

TEST(MessageLines, TextIsThreeCentredLinesWithoutTheMarker) {
    MessageLines messages;
    messages.ShowWarning("careful", "");
    messages.ShowText("one", "two", "three");
    EXPECT_FALSE(messages.warning);
    for (const MessageLine& line : messages.lines) {
        EXPECT_TRUE(line.visible);
        EXPECT_TRUE(line.centred);
    }
    EXPECT_EQ(messages.lines[0].text, "one");
    EXPECT_EQ(messages.lines[1].text, "two");
    EXPECT_EQ(messages.lines[2].text, "three");
    EXPECT_FALSE(messages.lines[1].twoLines);
}

TEST(MessageLines, AWarningShowsTheMarkerAndTwoLeftAlignedLines) {
    MessageLines messages;
    messages.ShowText("one", "two", "three");
    messages.ShowWarning("Port COM1", "is gone");
    EXPECT_TRUE(messages.warning);
    EXPECT_FALSE(messages.lines[0].visible);
    EXPECT_EQ(messages.lines[1].text, "Port COM1");
    EXPECT_EQ(messages.lines[2].text, "is gone");
    EXPECT_TRUE(messages.lines[1].visible);
    EXPECT_TRUE(messages.lines[2].visible);
    EXPECT_FALSE(messages.lines[1].centred);
    EXPECT_FALSE(messages.lines[2].centred);
    EXPECT_FALSE(messages.lines[1].twoLines);
}

TEST(MessageLines, TheSecondLineTakesTwoLinesWhenTheThirdIsEmpty) {
    MessageLines messages;
    messages.ShowWarning("a long one", "");
    EXPECT_TRUE(messages.lines[1].twoLines);
    messages.ShowText("one", "two", "three");
    EXPECT_FALSE(messages.lines[1].twoLines);
    messages.ShowText("one", "two", "");
    EXPECT_TRUE(messages.lines[1].twoLines);
}

TEST(MessageLines, ClearHidesEverything) {
    MessageLines messages;
    messages.ShowWarning("a", "b");
    messages.ShowClear();
    EXPECT_FALSE(messages.warning);
    for (const MessageLine& line : messages.lines) {
        EXPECT_FALSE(line.visible);
    }
}

}  // namespace
}  // namespace velmora
