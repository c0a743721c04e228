#include "eventloop/end_of_session_win32.h"

#include <gtest/gtest.h>

#include "support/thread_window.h"

namespace velmora {
namespace {

HWND sessionWindow() {
    return test::threadWindow(EndOfSession::kWindowClass);
}

class EndOfSessionTest : public testing::Test {
  protected:
    void SetUp() override {
        if (sessionWindow() == nullptr) {
            GTEST_SKIP() << "this system makes no windows";
        }
    }

    int ends = 0;
    int closes = 0;
    EndOfSession endOfSession{[this] { ++ends; }, [this] { ++closes; }};
};

TEST_F(EndOfSessionTest, ASessionThatEndsRunsTheHandlerBeforeTheSystemGoesOn) {
    SendMessageA(sessionWindow(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(closes, 0);
}

TEST_F(EndOfSessionTest, ASessionThatGoesOnAfterAllChangesNothing) {
    SendMessageA(sessionWindow(), WM_ENDSESSION, FALSE, 0);
    EXPECT_EQ(ends, 0);
}

TEST_F(EndOfSessionTest, ARequestToCloseRunsItsHandlerAndLeavesTheWindow) {
    SendMessageA(sessionWindow(), WM_CLOSE, 0, 0);
    EXPECT_EQ(closes, 1);
    EXPECT_EQ(ends, 0);
    ASSERT_NE(sessionWindow(), nullptr) << "the end of the session could not be told any more";
    SendMessageA(sessionWindow(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(ends, 1);
}

TEST_F(EndOfSessionTest, AWindowThatTheSystemDestroyedIsNotDestroyedAgain) {
    EXPECT_TRUE(endOfSession.hears());
    DestroyWindow(sessionWindow());
    EXPECT_FALSE(endOfSession.hears());
}

TEST(EndOfSessionLifeTest, AnotherOneMayFollow) {
    {
        const EndOfSession first([] { FAIL() << "is gone"; }, [] {});
    }
    EXPECT_EQ(sessionWindow(), nullptr);
    int requests = 0;
    const EndOfSession second([&] { ++requests; }, [] {});
    if (sessionWindow() == nullptr) {
        GTEST_SKIP() << "this system makes no windows";
    }
    SendMessageA(sessionWindow(), WM_ENDSESSION, TRUE, 0);
    EXPECT_EQ(requests, 1);
}

}  // namespace
}  // namespace velmora
