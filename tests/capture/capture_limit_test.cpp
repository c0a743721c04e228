#include "capture/capture_limit.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(CaptureLimit, IsAnAmountOfBytes) {
    EXPECT_EQ(parseCaptureLimit("500K")->bytes, 500U * 1024);
    EXPECT_EQ(parseCaptureLimit("20M")->bytes, 20U * 1024 * 1024);
    EXPECT_EQ(parseCaptureLimit("1G")->bytes, 1024U * 1024 * 1024);
    EXPECT_EQ(parseCaptureLimit("1G")->time, std::nullopt);
}

TEST(CaptureLimit, IsATime) {
    EXPECT_EQ(parseCaptureLimit("90s")->time, std::chrono::seconds(90));
    EXPECT_EQ(parseCaptureLimit("10min")->time, std::chrono::minutes(10));
    EXPECT_EQ(parseCaptureLimit("1000000h")->time, std::chrono::hours(1'000'000));
    EXPECT_EQ(parseCaptureLimit("2h")->bytes, std::nullopt);
}

TEST(CaptureLimit, IsNothingElse) {
    for (const char* text :
         {"", "20", "M", "0M", "1000001K", "99999999999999999999K", "-5M", "20 M", "20m", "20MB", "1.5G"}) {
        EXPECT_EQ(parseCaptureLimit(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace velmora
