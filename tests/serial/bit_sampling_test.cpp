#include "serial/bit_sampling.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

constexpr LineSettings kPlain{9600, Parity::None, 8, StopBits::One};

std::string allValues() {
    std::string bytes;
    for (int value = 0; value < 256; ++value) {
        bytes += static_cast<char>(value);
    }
    return bytes;
}

TEST(BitSamplingTest, EqualSettingsGiveEveryByteBack) {
    for (const Parity parity : {Parity::None, Parity::Odd, Parity::Even, Parity::Mark, Parity::Space}) {
        for (const StopBits stop : {StopBits::One, StopBits::Two}) {
            const LineSettings line{1200, parity, 8, stop};
            const auto sampled = sampledBytes(allValues(), line, line);
            ASSERT_EQ(sampled.size(), 256U);
            for (std::size_t i = 0; i < sampled.size(); ++i) {
                EXPECT_EQ(static_cast<unsigned char>(sampled[i].value), i);
                EXPECT_FALSE(sampled[i].framingError || sampled[i].parityError || sampled[i].lineBreak);
            }
        }
    }
}

TEST(BitSamplingTest, FiveBitsHaveOneAndAHalfStopBits) {
    const LineSettings line{50, Parity::None, 5, StopBits::OneAndHalf};
    EXPECT_EQ(sampledValues("\x1F\x01\x3F", line, line), "\x1F\x01\x1F");
}

TEST(BitSamplingTest, NothingSentGivesNothing) {
    EXPECT_TRUE(sampledBytes("", kPlain, kPlain).empty());
}

// One byte 0x00 at 1200 baud is low for nine bits, which is 72 at 9600: a break, and no more until it ends.
TEST(BitSamplingTest, ASlowNullIsABreakToAFastReceiver) {
    const auto sampled = sampledBytes(std::string(1, '\0'), {1200, Parity::None, 8, StopBits::One}, kPlain);
    ASSERT_EQ(sampled.size(), 1U);
    EXPECT_TRUE(sampled[0].lineBreak && sampled[0].framingError);
}

// At half the receiver's rate each bit is read twice: 0x55 alternates, so its bits come in pairs.
TEST(BitSamplingTest, HalfTheRateDoublesEveryBit) {
    // Low 2 (start), high 2, low 2, …: the first byte is start, 0,1,1,0,0,1,1,0 and the stop bit is low.
    const auto sampled = sampledBytes("\x55", {4800, Parity::None, 8, StopBits::One}, kPlain);
    ASSERT_FALSE(sampled.empty());
    EXPECT_EQ(static_cast<unsigned char>(sampled[0].value), 0x66);
    EXPECT_TRUE(sampled[0].framingError);
    EXPECT_FALSE(sampled[0].lineBreak);
}

// A start bit of a rate twenty times as high is over before its middle is looked at.
TEST(BitSamplingTest, AStartBitThatIsGoneByItsMiddleIsNone) {
    EXPECT_TRUE(sampledBytes("\xFF", {192000, Parity::None, 8, StopBits::One}, kPlain).empty());
}

TEST(BitSamplingTest, SevenBitsWithParityLookLikeEightBits) {
    EXPECT_EQ(sampledValues("\x16\x10\x02", {9600, Parity::Even, 7, StopBits::One}, kPlain), "\x96\x90\x82");
    EXPECT_EQ(sampledValues("\x16\x10\x02", {9600, Parity::Odd, 7, StopBits::One}, kPlain), "\x16\x10\x02");
    EXPECT_EQ(sampledValues("\x16", {9600, Parity::Mark, 7, StopBits::One}, kPlain), "\x96");
    EXPECT_EQ(sampledValues("\x96", {9600, Parity::Space, 7, StopBits::One}, kPlain), "\x16");
}

// The parity bit stands where the receiver looks for the stop bit: missing when it is 0.
TEST(BitSamplingTest, EightBitsWithParityHaveNoStopBitForAReceiverWithout) {
    const auto sampled = sampledBytes("\x03\x01", {9600, Parity::Even, 8, StopBits::One}, kPlain);
    ASSERT_EQ(sampled.size(), 2U);
    EXPECT_EQ(sampled[0].value, '\x03');
    EXPECT_TRUE(sampled[0].framingError);
    EXPECT_EQ(sampled[1].value, '\x01');
    EXPECT_FALSE(sampled[1].framingError);
}

// The stop bit, or the idle line, is taken for the parity bit.
TEST(BitSamplingTest, AReceiverWithParitySeesItMissing) {
    const LineSettings even{9600, Parity::Even, 8, StopBits::One};
    EXPECT_TRUE(sampledBytes("\x03", kPlain, even).at(0).parityError);
    EXPECT_FALSE(sampledBytes("\x01", kPlain, even).at(0).parityError);
}

}  // namespace
}  // namespace velmora
