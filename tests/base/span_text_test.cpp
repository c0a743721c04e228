#include "base/span_text.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(SpanTextTest, MinutesAndHoursAreApart) {
    EXPECT_EQ(spanText(0), "0:00");
    EXPECT_EQ(spanText(8), "0:08");
    EXPECT_EQ(spanText(65), "1:05");
    EXPECT_EQ(spanText(3'599), "59:59");
    EXPECT_EQ(spanText(3'600), "1:00:00");
    EXPECT_EQ(spanText(7'265), "2:01:05");
}

TEST(ExactSecondsTextTest, HasThousandths) {
    using namespace std::chrono_literals;
    EXPECT_EQ(exactSecondsText(0ns), "0.000");
    EXPECT_EQ(exactSecondsText(8'400us), "0.008");
    EXPECT_EQ(exactSecondsText(65s), "65.000");
    EXPECT_EQ(exactSecondsText(-1'500ms), "-1.500");
}

}  // namespace
}  // namespace velmora
