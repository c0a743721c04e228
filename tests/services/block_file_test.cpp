#include "services/block_file.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "services/two_byte_number.h"

namespace velmora {
namespace {

using namespace std::string_literals;

TEST(TwoByteNumberTest, TheMostSignificantByteComesFirst) {
    EXPECT_EQ(twoBytes(0x1234), "\x12\x34");
    EXPECT_EQ(twoBytes(0), "\0\0"s);
    EXPECT_EQ(twoBytes(65'535), "\xFF\xFF");
    EXPECT_EQ(twoByteNumberAt("a\xFE\x80", 1), 0xFE80U);
}

TEST(TwoByteNumberTest, ALargerNumberOverflows) {
    EXPECT_THROW(twoBytes(65'536), RunTimeError);
}

TEST(BlockFileTest, ANewHeaderHasItsTypeAndNoLength) {
    EXPECT_EQ(blockHeader(2), "ORG\0\0\x82"s);
    EXPECT_EQ(blockHeader(16), "ORG\0\0\x90"s);
}

TEST(BlockFileTest, TheLengthLeavesTheHeaderOut) {
    EXPECT_EQ(imageLengthField(6), "\0\0"s);
    EXPECT_EQ(imageLengthField(6 + 0x0203), "\x02\x03");
    EXPECT_EQ(imageLengthField(6 + 65'535), "\xFF\xFF");
    EXPECT_THROW(imageLengthField(6 + 65'536), RunTimeError);
}

TEST(BlockFileTest, AHeaderFitsItsTypeAndLengthOnly) {
    EXPECT_TRUE(blockHeaderFits("\0\x05\x83"s, 3, 11));
    EXPECT_FALSE(blockHeaderFits("\0\x05\x82"s, 3, 11)) << "another type";
    EXPECT_FALSE(blockHeaderFits("\0\x05\x83"s, 3, 12)) << "another length";
    EXPECT_FALSE(blockHeaderFits("\0\x05"s, 3, 5)) << "cut short";
    EXPECT_FALSE(blockHeaderFits(""s, 3, 0)) << "empty";
    EXPECT_FALSE(blockHeaderFits("\xFF\xFF\x83"s, 3, 5)) << "a file that is shorter than its header";
    EXPECT_FALSE(blockHeaderFits("\0\0\x83"s, 3, 65'542)) << "a length that the field cannot hold";
}

}  // namespace
}  // namespace velmora
