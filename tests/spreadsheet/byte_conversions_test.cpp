#include "spreadsheet/byte_conversions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace velmora {
namespace {

using namespace std::string_literals;

TEST(ByteConversions, WordsAreLittleEndian) {
    EXPECT_EQ(int16ToBytes(0x1234), "\x34\x12"s);
    EXPECT_EQ(int16ToBytes(-1), "\xFF\xFF"s);
    EXPECT_EQ(int16ToBytes(-32768), "\x00\x80"s);
    EXPECT_EQ(bytesToInt16("\x34\x12"s), 0x1234);
    EXPECT_EQ(bytesToInt16("\xFE\xFF"s), -2);
    EXPECT_EQ(bytesToUInt16("\xFE\xFF"s), 65534);
}

TEST(ByteConversions, EveryWordComesBack) {
    for (int value = -32768; value <= 32767; ++value) {
        ASSERT_EQ(bytesToInt16(int16ToBytes(value)), value);
    }
}

TEST(ByteConversions, DoublesAreTheirEightBytes) {
    EXPECT_EQ(doubleToBytes(1.0), "\0\0\0\0\0\0\xF0\x3F"s);
    EXPECT_EQ(doubleToBytes(-2.0), "\0\0\0\0\0\0\0\xC0"s);
    EXPECT_EQ(bytesToDouble("\0\0\0\0\0\0\xF0\x3F"s), 1.0);
    for (const double value : {0.0, 1.5, -1e300, 5e-324, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(bytesToDouble(doubleToBytes(value)), value);
    }
    EXPECT_TRUE(std::signbit(bytesToDouble(doubleToBytes(-0.0))));
    EXPECT_TRUE(std::isnan(bytesToDouble(doubleToBytes(std::nan("")))));
}

}  // namespace
}  // namespace velmora
