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

}  // namespace
}  // namespace velmora
