#include "link/frames.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

using namespace std::string_literals;

class FramesTest : public testing::Test {
  protected:
    void SetUp() override { crc.load_CRCtable(); }
    Crc crc;
};

TEST_F(FramesTest, FrameOnTheWire) {
    EXPECT_EQ(buildFrame(crc, FrameType::Data, 0, "hello"),
              "\x16\x10\x02"s
              "\x01\x18hello"
              "\x10\x03"
              "\xC1\x2C");
}

TEST_F(FramesTest, DleIsDoubledAndTheCheckCoversTheSingleOne) {
    const std::string frame = buildFrame(crc, FrameType::Data, 1, "\x10");
    EXPECT_EQ(frame.substr(3, 4), "\x01\x19\x10\x10");
    const auto check = crc.check("\x01\x19\x10");
    EXPECT_EQ(frame.substr(frame.size() - 2), std::string(check.data(), 2));
    EXPECT_EQ(parseFrame(crc, frame)->data, "\x10");
}

TEST_F(FramesTest, StuffingDoublesOnlyDle) {
    EXPECT_EQ(stuff("\x10\x10\x03\x16\x02"), "\x10\x10\x10\x10\x03\x16\x02");
    EXPECT_EQ(stuff(""), "");
}

TEST_F(FramesTest, ALoneDleSwallowsItsSuccessor) {
    EXPECT_EQ(unstuff("a\x10z"), "a\x10");
    EXPECT_EQ(unstuff("a\x10"), "a\x10");
    EXPECT_EQ(unstuff("\x10\x10\x10\x10z"), "\x10\x10z");
}

TEST_F(FramesTest, TypeAndSequenceComeBack) {
    for (const FrameType type : {FrameType::Ack, FrameType::Discon, FrameType::Connect, FrameType::Data}) {
        for (std::uint8_t sequence = 0; sequence < kSequenceModulus; ++sequence) {
            const auto parsed = parseFrame(crc, buildFrame(crc, type, sequence, "x"));
            ASSERT_TRUE(parsed);
            EXPECT_EQ(parsed->type, static_cast<std::uint8_t>(type));
            EXPECT_EQ(parsed->sequence, sequence);
            EXPECT_EQ(parsed->data, "x");
        }
    }
}

TEST_F(FramesTest, EveryFlippedBitBehindTheHeaderIsRejected) {
    const std::string good = buildFrame(crc, FrameType::Data, 3, "MEMO");
    for (std::size_t bit = 3 * 8; bit < good.size() * 8; ++bit) {
        if (bit / 8 == good.size() - 4 || bit / 8 == good.size() - 3) {
            continue;  // the trailer is the cutter's business
        }
        std::string bad = good;
        bad[bit / 8] = static_cast<char>(bad[bit / 8] ^ (1 << (bit % 8)));
        EXPECT_FALSE(parseFrame(crc, bad)) << "bit " << bit;
    }
}

TEST_F(FramesTest, EveryPrefixOfAFrameIsRejected) {
    const std::string good = buildFrame(crc, FrameType::Data, 3, "MEMO");
    for (std::size_t length = 0; length < good.size(); ++length) {
        EXPECT_FALSE(parseFrame(crc, good.substr(0, length))) << length;
    }
}

TEST_F(FramesTest, ABodyTooShortForATypeIsRejected) {
    EXPECT_FALSE(parseFrame(crc, "\x16\x10\x02\x10\x03\0\0"s)) << "empty body";
    const auto check = crc.check("\x01");
    EXPECT_FALSE(parseFrame(crc, "\x16\x10\x02\x01\x10\x03"s + std::string(check.data(), 2)));
}

}  // namespace
}  // namespace velmora
