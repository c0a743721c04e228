#include "apps/narrow_argument_win32.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "arguments/usage_error.h"
#include "platform/win32/ansi_text.h"
#include "platform/win32/win32_handle.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

class NarrowArgument : public testing::Test {
  protected:
    void SetUp() override {
        if (GetACP() != 1252) {
            GTEST_SKIP() << "the ANSI code page of this machine is " << GetACP();
        }
    }
    std::wstring pathOf(const std::wstring& name) const {
        return wideFromAnsi(folder_.path()) + L"\\" + name;
    }
    static void make(const std::wstring& path) {
        const Win32Handle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
        ASSERT_TRUE(file.isValid());
    }

    test::TempFolder folder_;
};

TEST_F(NarrowArgument, OfTheCodePageStaysAsItIs) {
    EXPECT_EQ(narrowArgument(L""), "");
    EXPECT_EQ(narrowArgument(L"--folder=C:\\B\u00FC \u20AC"), "--folder=C:\\B\xFC \x80");
}

TEST_F(NarrowArgument, OfAMissingFileIsRefusedAndNamed) {
    for (const wchar_t* word : {L"\u0141\u00F3dz.txt", L"--config=\u0141\u00F3dz.txt", L"--\u0141=x"}) {
        try {
            const std::string narrow = narrowArgument(word);
            ADD_FAILURE() << narrow;
        } catch (const UsageError& error) {
            EXPECT_NE(std::string(error.what()).find('?'), std::string::npos) << error.what();
        }
    }
    try {
        narrowArgument(L"\u0141\u00F3dz.txt");
    } catch (const UsageError& error) {
        EXPECT_NE(std::string(error.what())
                      .find("?\xF3"
                            "dz.txt"),
                  std::string::npos)
            << error.what();
    }
}

TEST_F(NarrowArgument, OfAFileThatIsThereIsItsShortNameAndNoOther) {
    make(pathOf(L"\u0141\u00F3dz.txt"));
    make(pathOf(L"L\u00F3dz.txt"));
    std::string plain;
    std::string option;
    try {
        plain = narrowArgument(pathOf(L"\u0141\u00F3dz.txt"));
        option = narrowArgument(L"--config=" + pathOf(L"\u0141\u00F3dz.txt"));
    } catch (const UsageError&) {
        GTEST_SKIP() << "this volume keeps no short names";
    }
    EXPECT_EQ(option, "--config=" + plain);
    EXPECT_TRUE(DeleteFileA(plain.c_str())) << plain;
    EXPECT_EQ(GetFileAttributesW(pathOf(L"\u0141\u00F3dz.txt").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_NE(GetFileAttributesW(pathOf(L"L\u00F3dz.txt").c_str()), INVALID_FILE_ATTRIBUTES);
}

}  // namespace
}  // namespace velmora
