#include <gtest/gtest.h>
#include <windows.h>

#include "platform/win32/ansi_text.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

class AnsiText : public testing::Test {
  protected:
    void SetUp() override {
        if (GetACP() != 1252) {
            GTEST_SKIP() << "the ANSI code page of this machine is " << GetACP();
        }
    }

    test::TempFolder folder_;
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

TEST_F(AnsiText, BytesThatAreNoTextOfACodePageAreTold) {
    for (int byte = 1; byte < 256; ++byte) {
        EXPECT_TRUE(isExactText(std::string(1, static_cast<char>(byte)), 1252)) << byte;
    }
    EXPECT_TRUE(isExactText("", CP_UTF8));
    EXPECT_TRUE(isExactText("C:\\AB", CP_UTF8));
    EXPECT_TRUE(
        isExactText("\xC3\x84"
                    "B",
                    CP_UTF8));
    EXPECT_FALSE(
        isExactText("\xC4"
                    "B",
                    CP_UTF8))
        << "a letter of Windows-1252";
    EXPECT_FALSE(
        isExactText("\xD6"
                    "B",
                    CP_UTF8))
        << "would be the same replacement character";
    EXPECT_FALSE(isExactText("B\x81", 932)) << "half a character";
    EXPECT_FALSE(isExactText("\xFA\x54", 932)) << "a sign that has other bytes, too";
}

TEST_F(AnsiText, ALetterThatTheCodePageLacksIsNeitherAQuestionMarkNorASimilarOne) {
    EXPECT_FALSE(exactAnsi(L"\u0394.txt").has_value()) << "Greek";
    EXPECT_FALSE(exactAnsi(L"\u0100b.txt").has_value()) << "A with a line above, which Windows makes an A";
    EXPECT_FALSE(exactAnsi(L"\U0001F600.txt").has_value()) << "beyond 16 bits";
}

TEST_F(AnsiText, Utf8GoesThereAndBack) {
    EXPECT_EQ(wideFromUtf8("\xC5\x81 \xC3\xBC"), L"\u0141 \u00FC");
    EXPECT_EQ(utf8FromWide(L"\u0141 \u00FC"), "\xC5\x81 \xC3\xBC");
}

TEST_F(AnsiText, APathOfTheCodePageStaysAsItIs) {
    const std::string path =
        "C:\\B\xFC"
        "cher \x80";
    EXPECT_EQ(exactPath(L"C:\\B\u00FCcher \u20AC"), path);
    EXPECT_EQ(ansiPath(L"C:\\B\u00FCcher \u20AC"), path);
}

TEST_F(AnsiText, APathThatIsNotThereHasNoExactOneAndIsShownWithQuestionMarks) {
    EXPECT_EQ(exactPath(L"C:\\no such folder\\\u4E2D"), std::nullopt);
    EXPECT_EQ(ansiPath(L"C:\\no such folder\\\u4E2D"), "C:\\no such folder\\?");
}

TEST_F(AnsiText, NoLetterOfAPathBecomesASimilarOne) {
    EXPECT_EQ(exactPath(L"C:\\\u0141\u00F3d\u017A-missing"), std::nullopt);
    EXPECT_EQ(ansiPath(L"C:\\\u0141\u00F3d\u017A-missing"),
              "C:\\?\xF3"
              "d?-missing");
}

TEST_F(AnsiText, AFolderWithOtherLettersIsGivenByItsShortNameAndNoOther) {
    const std::wstring folder = wideFromAnsi(folder_.path()) + L"\\\u0141\u00F3d\u017A";
    const std::wstring similar = wideFromAnsi(folder_.path()) + L"\\L\u00F3dz";
    ASSERT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
    ASSERT_TRUE(CreateDirectoryW(similar.c_str(), nullptr));
    const auto path = exactPath(folder);
    if (path) {
        // Whether it is the same folder shows in what is made inside.
        EXPECT_TRUE(CreateDirectoryA((*path + "\\inside").c_str(), nullptr)) << *path;
        EXPECT_TRUE(RemoveDirectoryW((folder + L"\\inside").c_str())) << *path;
    } else {
        EXPECT_NE(ansiPath(folder).find('?'), std::string::npos);
    }
    EXPECT_TRUE(RemoveDirectoryW(similar.c_str()));
    EXPECT_TRUE(RemoveDirectoryW(folder.c_str()));
    if (!path) {
        GTEST_SKIP() << "this volume keeps no short names";
    }
}

}  // namespace
}  // namespace velmora
