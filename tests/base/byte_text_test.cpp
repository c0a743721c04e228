#include "base/byte_text.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(ByteText, TrimsBlanksAndNothingElse) {
    EXPECT_EQ(trimBlanks("  MEMO \t "), "MEMO \t");
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimRight("  x  "), "  x");
}

TEST(ByteText, CasesAccentedLettersOfWindows1252) {
    EXPECT_EQ(upperCase("az\xE4\xF6\xFC\xFF\x9A"), "AZ\xC4\xD6\xDC\x9F\x8A");
    EXPECT_EQ(lowerCase("AZ\xC4\xD6\xDC\x9F\x8A"), "az\xE4\xF6\xFC\xFF\x9A");
}

TEST(ByteText, LeavesSignsBetweenTheLettersAlone) {
    EXPECT_EQ(upperCase("\xF7\xDF"), "\xF7\xDF");
    EXPECT_EQ(lowerCase("\xD7[@"), "\xD7[@");
}

TEST(ByteText, EveryAssignedByteSurvivesTheWayToUtf8AndBack) {
    for (int code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        const auto utf8 = toUtf8Exact(byte);
        if (code == 0x81 || code == 0x8D || code == 0x8F || code == 0x90 || code == 0x9D) {
            EXPECT_FALSE(utf8.has_value()) << code;
            EXPECT_EQ(toUtf8(byte), "\xEF\xBF\xBD");
            continue;
        }
        ASSERT_TRUE(utf8.has_value()) << code;
        EXPECT_EQ(fromUtf8(*utf8), byte) << code;
    }
}

TEST(ByteText, EuroSignIsOneByte) {
    EXPECT_EQ(toUtf8("\x80"), "\xE2\x82\xAC");
}

TEST(ByteText, RefusesWhatIsNotUtf8OrHasNoByte) {
    EXPECT_FALSE(fromUtf8("\xC3").has_value());
    EXPECT_FALSE(fromUtf8("\xC0\x80").has_value());
    EXPECT_FALSE(fromUtf8("\xE0\x80\x80").has_value());
    EXPECT_FALSE(fromUtf8("\xFF").has_value());
    EXPECT_FALSE(fromUtf8("\xE4\xB8\xAD").has_value()) << "a Chinese character";
    EXPECT_FALSE(fromUtf8("\xF0\x9F\x98\x80").has_value()) << "outside the basic plane";
    EXPECT_FALSE(fromUtf8("\xC2\x81").has_value()) << "a control code that Windows-1252 does not hold";
}

TEST(ByteText, ShowsControlBytesInALine) {
    EXPECT_EQ(showControls("caf\xE9\r\n\x1B[2J\x7F."), "caf\xE9<0D><0A><1B>[2J<7F>.");
}

TEST(ByteText, DumpsBytesInHexadecimal) {
    EXPECT_EQ(hexDump(std::string("\x00\x1F\xFE", 3)), "00 1F FE");
}

TEST(ByteText, HexEscapesEveryByteOutside32To126IsHexadecimal) {
    EXPECT_EQ(hexEscaped("a ~"), "a ~");
    EXPECT_EQ(hexEscaped(std::string("\0\x1F\x7F\x80\xFF\r\n", 7)), "<00><1F><7F><80><FF><0D><0A>");
    EXPECT_EQ(hexEscaped(""), "");
}

}  // namespace
}  // namespace velmora
