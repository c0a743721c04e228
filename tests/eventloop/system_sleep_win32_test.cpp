#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <vector>

#include "eventloop/system_sleep.h"
#include "support/thread_window.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;

HWND sleepWindow() {
    return test::threadWindow("VelmoraSleep");
}

class SystemSleepTest : public testing::Test {
  protected:
    void SetUp() override {
        if (sleepWindow() == nullptr) {
            GTEST_SKIP() << "this system makes no windows";
        }
        sleep.onEvent([this](SleepEvent event) { told.push_back(event); });
    }
    static void power(WPARAM what) { SendMessageA(sleepWindow(), WM_POWERBROADCAST, what, 0); }
    /// What keeps the computer awake now.
    static EXECUTION_STATE state() { return SetThreadExecutionState(ES_CONTINUOUS); }

    std::vector<SleepEvent> told;
    SystemSleep sleep;
};

TEST_F(SystemSleepTest, SleepIsToldBeforeTheSystemGoesOnAndSoIsWaking) {
    power(PBT_APMSUSPEND);
    EXPECT_THAT(told, ElementsAre(SleepEvent::Sleeps));
    power(PBT_APMRESUMEAUTOMATIC);
    EXPECT_THAT(told, ElementsAre(SleepEvent::Sleeps, SleepEvent::Wakes));
}

TEST_F(SystemSleepTest, WhatIsToldTwiceCountsOnce) {
    power(PBT_APMSUSPEND);
    power(PBT_APMSUSPEND);
    power(PBT_APMRESUMEAUTOMATIC);
    power(PBT_APMRESUMEAUTOMATIC);
    EXPECT_THAT(told, ElementsAre(SleepEvent::Sleeps, SleepEvent::Wakes));
}

TEST_F(SystemSleepTest, OtherNewsOfThePowerAreNoSleep) {
    power(PBT_APMPOWERSTATUSCHANGE);
    EXPECT_TRUE(told.empty());
}

TEST_F(SystemSleepTest, TheComputerIsKeptAwakeUntilItIsLetGo) {
    sleep.keepAwake(true);
    EXPECT_EQ(state(), ES_CONTINUOUS | ES_SYSTEM_REQUIRED);
    sleep.keepAwake(true);
    sleep.keepAwake(false);
    EXPECT_EQ(state(), static_cast<EXECUTION_STATE>(ES_CONTINUOUS));
}

}  // namespace
}  // namespace velmora
