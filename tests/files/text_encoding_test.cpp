#include "files/text_encoding.h"

#include <gtest/gtest.h>

#include <vector>

namespace velmora {
namespace {

using Lines = std::vector<std::string>;

class TextEncodingTest : public ::testing::Test {
  protected:
    std::string from(std::string_view bytes, TextEncoding encoding) {
        told.clear();
        return textFromBytes(bytes, encoding, [this](const std::string& what) { told.push_back(what); });
    }
    std::string to(std::string_view text, TextEncoding encoding) {
        told.clear();
        return bytesFromText(text, encoding, [this](const std::string& what) { told.push_back(what); });
    }

    Lines told;
};

TEST_F(TextEncodingTest, Windows1252PassesAsItIs) {
    EXPECT_EQ(from("Caf\xE9 \x81\r\n", TextEncoding::Windows1252), "Caf\xE9 \x81\r\n");
    EXPECT_EQ(to("Caf\xE9 \x81\r\n", TextEncoding::Windows1252), "Caf\xE9 \x81\r\n");
    EXPECT_EQ(told, Lines{});
}

TEST_F(TextEncodingTest, Utf8IsConvertedThereAndBack) {
    EXPECT_EQ(from("Caf\xC3\xA9 5 \xE2\x82\xAC\r\n", TextEncoding::Utf8), "Caf\xE9 5 \x80\r\n");
    EXPECT_EQ(to("Caf\xE9 5 \x80\r\n", TextEncoding::Utf8), "Caf\xC3\xA9 5 \xE2\x82\xAC\r\n");
    EXPECT_EQ(told, Lines{});
}

TEST_F(TextEncodingTest, TheMarkIsNoDataAndSaysThatItIsUtf8) {
    EXPECT_EQ(withoutMark("\xEF\xBB\xBF"
                          "A"),
              "A");
    EXPECT_EQ(withoutMark("A\xEF\xBB\xBF"), "A\xEF\xBB\xBF");
    EXPECT_EQ(from("\xEF\xBB\xBF"
                   "Caf\xC3\xA9",
                   TextEncoding::Windows1252),
              "Caf\xE9");
    EXPECT_EQ(from("\xEF\xBB\xBF", TextEncoding::Utf8), "");
}

TEST_F(TextEncodingTest, LettersThatWindows1252LacksAreToldWithTheirLine) {
    EXPECT_EQ(from("a\n\xC5\x81\xC3\xB3"
                   "d\xC5\xBA \xF0\x9F\x98\x80\nb",
                   TextEncoding::Utf8),
              "a\n?\xF3"
              "d? ?\nb");
    EXPECT_EQ(told, (Lines{"line 2: letters that Windows-1252 lacks became \"?\": 3"}));
}

TEST_F(TextEncodingTest, BytesThatAreNoUtf8AreToldToo) {
    EXPECT_EQ(from("\xE9t\xE9 \xC3", TextEncoding::Utf8), "?t? ?");
    EXPECT_EQ(told, (Lines{"line 1: letters that Windows-1252 lacks became \"?\": 3"}));
}

TEST_F(TextEncodingTest, BytesWithoutALetterAreTold) {
    EXPECT_EQ(to("a\r\n\x81"
                 "b\x9D",
                 TextEncoding::Utf8),
              "a\r\n\xEF\xBF\xBD"
              "b\xEF\xBF\xBD");
    EXPECT_EQ(told, (Lines{"line 2: bytes are no letters of Windows-1252: 2"}));
}

}  // namespace
}  // namespace velmora
