#include <gtest/gtest.h>
#include <windows.h>

#include "platform/win32/ansi_text.h"

namespace velmora {
namespace {

class AnsiText : public testing::Test {
  protected:
    void SetUp() override {
        if (GetACP() != 1252) {
            GTEST_SKIP() << "the ANSI code page of this machine is " << GetACP();
        }
    }
};

TEST_F(AnsiText, LettersOfTheCodePageGoThereAndBack) {
    EXPECT_EQ(wideFromAnsi("Gr\xF6\xDF\x80"), L"Gr\u00F6\u00DF\u20AC");
    EXPECT_EQ(exactAnsi(L"Gr\u00F6\u00DF\u20AC"), "Gr\xF6\xDF\x80");
    EXPECT_EQ(exactAnsi(L""), "");
}

TEST_F(AnsiText, EveryByteIsItself) {
    for (int byte = 1; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(exactAnsi(wideFromAnsi(text)), text) << byte;
    }
}

TEST_F(AnsiText, ALetterThatTheCodePageLacksIsNeitherAQuestionMarkNorASimilarOne) {
    EXPECT_FALSE(exactAnsi(L"\u0394.txt").has_value()) << "Greek";
    EXPECT_FALSE(exactAnsi(L"\u0100b.txt").has_value()) << "A with a line above, which Windows makes an A";
    EXPECT_FALSE(exactAnsi(L"\U0001F600.txt").has_value()) << "beyond 16 bits";
}

TEST_F(AnsiText, APathThatIsNotThereIsGivenAsNearAsItCan) {
    EXPECT_EQ(ansiPath(L"C:\\no such folder\\x"), "C:\\no such folder\\x");
    EXPECT_EQ(ansiPath(L"C:\\no such folder\\\u4E2D"), "C:\\no such folder\\?");
}

}  // namespace
}  // namespace velmora
