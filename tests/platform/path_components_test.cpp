#include "platform/path_components.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(PathComponents, FindControlCodes) {
    EXPECT_TRUE(holdsControlCode(std::string_view("a\0", 2)));
    EXPECT_TRUE(holdsControlCode("a\x1F"));
    EXPECT_FALSE(holdsControlCode("a \x7F\x80\xFF"));
    EXPECT_FALSE(holdsControlCode(""));
}

TEST(PathComponents, JoinWritesTheFirstSeparatorAndDropsAllOthersBetween) {
    EXPECT_EQ(joinWithOne("\\/", "a/\\", "/b"), "a\\b");
    EXPECT_EQ(joinWithOne("/", "a\\", "b"), "a\\/b");
}

TEST(PathComponents, DotDotNeverClimbsAboveTheRoot) {
    EXPECT_EQ(resolvedComponents("/", "/../a/../../b"), "b");
    EXPECT_EQ(resolvedComponents("/", "/a/.."), "");
}

TEST(PathComponents, EverySeparatorSeparatesAndTheFirstIsWritten) {
    EXPECT_EQ(resolvedComponents("\\/", "a/b\\c/../d"), "a\\b\\d");
}

}  // namespace
}  // namespace velmora
