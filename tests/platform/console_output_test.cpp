#include "platform/console_output.h"

#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>

#include "support/console_request.h"
#endif

namespace velmora {
namespace {

#ifdef _WIN32

// With the console that the test is run on as the process's standard output. Wine has one on a terminal only.
class ConsoleOutputTest : public testing::Test {
  protected:
    static void SetUpTestSuite() { test::ConsoleRequest::keepTheProgram(); }
    void SetUp() override {
        screen_ = CreateFileA("CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_EXISTING, 0, nullptr);
        if (screen_ == INVALID_HANDLE_VALUE) {
            GTEST_SKIP() << "there is no console: " << GetLastError();
        }
        SetStdHandle(STD_OUTPUT_HANDLE, screen_);
        ASSERT_NE(SetConsoleOutputCP(437), FALSE) << GetLastError();
    }
    void TearDown() override {
        if (screen_ != INVALID_HANDLE_VALUE) {
            SetConsoleOutputCP(earlier_);
            SetStdHandle(STD_OUTPUT_HANDLE, output_);
            CloseHandle(screen_);
        }
    }

  private:
    HANDLE output_ = GetStdHandle(STD_OUTPUT_HANDLE);
    UINT earlier_ = GetConsoleOutputCP();
    HANDLE screen_ = INVALID_HANDLE_VALUE;
};

TEST_F(ConsoleOutputTest, TheConsoleHasTheTextsEncodingAndGetsItsOwnBack) {
    auto console = showOnConsole(PrintedText::Utf8);
    EXPECT_EQ(GetConsoleOutputCP(), UINT{CP_UTF8});
    console.reset();
    EXPECT_EQ(GetConsoleOutputCP(), 437u);
    console = showOnConsole(PrintedText::System);
    EXPECT_EQ(GetConsoleOutputCP(), GetACP());
    console.reset();
    EXPECT_EQ(GetConsoleOutputCP(), 437u);
}

TEST_F(ConsoleOutputTest, TheConsoleGetsItsOwnBackWhenARequestEndsTheProgram) {
    if (!test::ConsoleRequest::canBeMade()) {
        GTEST_SKIP() << "this system's requests cannot be made from inside";
    }
    auto console = showOnConsole(PrintedText::Utf8);
    EXPECT_EQ(GetConsoleOutputCP(), UINT{CP_UTF8});
    EXPECT_TRUE(test::ConsoleRequest(CTRL_C_EVENT).isAnswered());
    EXPECT_EQ(GetConsoleOutputCP(), 437u);
    ASSERT_NE(SetConsoleOutputCP(850), FALSE);
    console.reset();
    EXPECT_EQ(GetConsoleOutputCP(), 850u) << "it was given back already";
}

#else

TEST(ConsoleOutputTest, ThereIsNothingToGiveBack) {
    EXPECT_EQ(showOnConsole(PrintedText::System), nullptr);
    EXPECT_EQ(showOnConsole(PrintedText::Utf8), nullptr);
}

#endif

}  // namespace
}  // namespace velmora
