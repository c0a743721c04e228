#include "serial/adapter_latency.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;
using ::testing::StartsWith;

LineSettings at(std::uint32_t baud) {
    return {baud, Parity::None, 8, StopBits::One};
}

TEST(AdapterLatencyTest, MattersFromATenthOfTheLinesTimeOn) {
    EXPECT_FALSE(latencyMatters(16ms, at(1'200)));
    EXPECT_FALSE(latencyMatters(16ms, at(2'400)));
    EXPECT_TRUE(latencyMatters(16ms, at(9'600)));
    EXPECT_FALSE(latencyMatters(9ms, at(9'600)));
    EXPECT_FALSE(latencyMatters(1ms, at(38'400)));
    EXPECT_TRUE(latencyMatters(1ms, at(115'200)));
    EXPECT_FALSE(latencyMatters(0ms, at(4'000'000)));
}

TEST(AdapterLatencyTest, TheAdviceNamesTheDeviceTheTimeAndWhatHelps) {
    const std::string advice = latencyAdvice("COM7", 16ms);
    EXPECT_THAT(advice, StartsWith("COM7 holds received bytes back for 16 ms, which slows transfers down; "));
#ifdef _WIN32
    EXPECT_THAT(advice, HasSubstr("Latency Timer"));
#else
    EXPECT_THAT(advice, HasSubstr("/COM7/latency_timer"));
#endif
}

}  // namespace
}  // namespace velmora
