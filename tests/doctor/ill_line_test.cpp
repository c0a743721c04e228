#include "ill_line.h"

#include <gtest/gtest.h>

#include <chrono>

namespace velmora::tools {
namespace {

using namespace std::chrono_literals;

constexpr LineSettings kComputer{};

IllLine lineWith(const std::string& illness) {
    return {readIllness("--ill", illness), 1};
}

TEST(IllLineTest, EqualSettingsChangeNothing) {
    IllLine line = lineWith("rate=9600");
    EXPECT_EQ(valuesOf(line.toHandheld("there", kComputer)), "there");
    EXPECT_EQ(valuesOf(line.toComputer("back", kComputer)), "back");
    EXPECT_EQ(valuesOf(line.backToComputer("there", kComputer)), "");
    EXPECT_EQ(line.nextUnasked(), IllLine::Time::max());
    EXPECT_EQ(valuesOf(line.unasked(1h, kComputer)), "");
}

TEST(IllLineTest, OtherSettingsAreSampledBitByBit) {
    IllLine line = lineWith("form=7E1");
    EXPECT_EQ(valuesOf(line.toComputer("\x16\x10\x02", kComputer)), "\x96\x90\x82");
}

TEST(IllLineTest, DeadDirectionsCarryNothing) {
    IllLine mute = lineWith("mute");
    EXPECT_EQ(valuesOf(mute.toComputer("a", kComputer)), "");
    EXPECT_EQ(valuesOf(mute.toHandheld("a", kComputer)), "");
    IllLine deaf = lineWith("deaf");
    EXPECT_EQ(valuesOf(deaf.toComputer("a", kComputer)), "a");
    EXPECT_EQ(valuesOf(deaf.toHandheld("a", kComputer)), "");
}

TEST(IllLineTest, JoinedPinsGiveEverythingBackAtAnyRate) {
    IllLine line = lineWith("loopback");
    EXPECT_EQ(valuesOf(line.backToComputer("all", {300, Parity::None, 8, StopBits::One})), "all");
}

TEST(IllLineTest, AnEchoHasARateOfItsOwn) {
    IllLine line = lineWith("echo");
    EXPECT_EQ(valuesOf(line.backToComputer("all", kComputer)), "all");
    EXPECT_NE(valuesOf(line.backToComputer("all", {300, Parity::None, 8, StopBits::One})), "all");
}

TEST(IllLineTest, AModemAnswersItsCommands) {
    IllLine line = lineWith("modem");
    EXPECT_EQ(valuesOf(line.backToComputer("garbage A", kComputer)), "garbage A");
    EXPECT_EQ(valuesOf(line.backToComputer("T\r", kComputer)), "T\r\r\nOK\r\n");
    EXPECT_EQ(valuesOf(line.backToComputer("hello\r", kComputer)), "hello\r");
    EXPECT_EQ(valuesOf(lineWith("quiet-modem").backToComputer("AT\r", kComputer)), "\r\nOK\r\n");
}

TEST(IllLineTest, NoiseChangesBytesAndLossesTakeRuns) {
    const std::string bytes(1000, 'x');
    const std::string noisy = valuesOf(lineWith("noise=0.1").toComputer(bytes, kComputer));
    EXPECT_EQ(noisy.size(), bytes.size());
    EXPECT_NEAR(static_cast<double>(std::count(noisy.begin(), noisy.end(), 'x')), 900, 50);
    EXPECT_EQ(valuesOf(lineWith("losses=1").toComputer(bytes, kComputer)), "");
}

TEST(IllLineTest, InterruptionsAreBreaks) {
    const IllLine::Bytes bytes = lineWith("breaks=1").toComputer("a", kComputer);
    ASSERT_EQ(bytes.size(), 1U);
    EXPECT_TRUE(bytes[0].lineBreak && bytes[0].value == '\0');
}

TEST(IllLineTest, AStuckLineAndAnotherProtocolSpeakUnasked) {
    IllLine stuck = lineWith("stuck");
    EXPECT_EQ(valuesOf(stuck.unasked(1s, kComputer)), std::string(1, '\0'));
    EXPECT_EQ(stuck.nextUnasked(), 1100ms);
    EXPECT_EQ(valuesOf(stuck.unasked(1050ms, kComputer)), "");
    IllLine other = lineWith("xmodem");
    EXPECT_EQ(valuesOf(other.unasked(1s, kComputer)), "\x15");
    EXPECT_EQ(other.nextUnasked(), 2s);
    EXPECT_EQ(valuesOf(other.toComputer("a", kComputer)), "");
}

}  // namespace
}  // namespace velmora::tools
