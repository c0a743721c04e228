#include "link/crc.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace velmora {
namespace {

std::string checkOf(const Crc& crc, std::string_view body) {
    const auto check = crc.check(body);
    return {check.data(), check.size()};
}

class CrcTest : public testing::Test {
  protected:
    void SetUp() override { crc.load_CRCtable(); }
    Crc crc;
};

TEST_F(CrcTest, PublishedCheckValueOfTheArcVariant) {
    // 0xBB3D, low byte first.
    EXPECT_EQ(checkOf(crc, "123456789"), "\x3D\xBB");
}

TEST_F(CrcTest, CheckOfAHelloBody) {
    EXPECT_EQ(checkOf(crc, "\x01\x18hello"), "\xC1\x2C");
}

TEST_F(CrcTest, TableHoldsSwappedEntries) {
    EXPECT_EQ(crc.entry(0), 0x0000);
    EXPECT_EQ(crc.entry(1), 0xC1C0);
    EXPECT_EQ(crc.entry(2), 0x81C1);
    EXPECT_EQ(crc.entry(3), 0x4001);
    EXPECT_EQ(crc.entry(4), 0x01C3);
    EXPECT_EQ(crc.entry(255), 0x4040);
}

TEST_F(CrcTest, LoadingAgainChangesNothing) {
    EXPECT_TRUE(crc.loaded());
    crc.load_CRCtable();
    EXPECT_EQ(crc.entry(1), 0xC1C0);
    EXPECT_FALSE(Crc().loaded());
}

TEST_F(CrcTest, LongBodiesAgreeWithTheBitwiseDefinition) {
    std::mt19937 random(1);
    for (std::size_t length = 1; length < 100; ++length) {
        std::string body(length, '\0');
        for (char& c : body) {
            c = static_cast<char>(random());
        }
        unsigned expected = 0;
        for (const char c : body) {
            expected ^= static_cast<unsigned char>(c);
            for (int bit = 0; bit < 8; ++bit) {
                expected = (expected & 1) != 0 ? (expected >> 1) ^ 0xA001U : expected >> 1;
            }
        }
        const std::string bytes = {static_cast<char>(expected & 0xFF), static_cast<char>(expected >> 8)};
        ASSERT_EQ(checkOf(crc, body), bytes) << "length " << length;
    }
}

TEST_F(CrcTest, OneFlippedBitChangesTheCheck) {
    const std::string good = "\x01\x18hello";
    for (std::size_t bit = 0; bit < good.size() * 8; ++bit) {
        std::string bad = good;
        bad[bit / 8] = static_cast<char>(bad[bit / 8] ^ (1 << (bit % 8)));
        EXPECT_NE(checkOf(crc, bad), checkOf(crc, good)) << "bit " << bit;
    }
}

}  // namespace
}  // namespace velmora
