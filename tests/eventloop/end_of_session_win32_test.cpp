#include "eventloop/end_of_session_win32.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

/// Tells the program's windows of a session that ends (1), or that was about to and goes on (0).
bool tell(WPARAM ends) {
    const HWND window = FindWindowA(EndOfSession::kWindowClass, nullptr);
    if (window == nullptr) {
        return false;
    }
    SendMessageA(window, WM_ENDSESSION, ends, 0);
    return true;
}

TEST(EndOfSessionTest, ASessionThatEndsRunsTheHandlerBeforeTheSystemGoesOn) {
    int requests = 0;
    const EndOfSession endOfSession([&] { ++requests; });
    if (!tell(TRUE)) {
        GTEST_SKIP() << "this system makes no windows";
    }
    EXPECT_EQ(requests, 1);
}

TEST(EndOfSessionTest, ASessionThatGoesOnAfterAllChangesNothing) {
    int requests = 0;
    const EndOfSession endOfSession([&] { ++requests; });
    if (!tell(FALSE)) {
        GTEST_SKIP() << "this system makes no windows";
    }
    EXPECT_EQ(requests, 0);
}

TEST(EndOfSessionTest, AnotherOneMayFollow) {
    {
        const EndOfSession first([] { FAIL() << "is gone"; });
    }
    int requests = 0;
    const EndOfSession second([&] { ++requests; });
    if (!tell(TRUE)) {
        GTEST_SKIP() << "this system makes no windows";
    }
    EXPECT_EQ(requests, 1);
}

}  // namespace
}  // namespace velmora
