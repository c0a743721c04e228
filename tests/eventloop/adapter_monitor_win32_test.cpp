#include <gtest/gtest.h>

#include "eventloop/adapter_monitor.h"
#include "support/thread_window.h"

// The types of windows.h come with the above.
#include <dbt.h>

namespace velmora {
namespace {

HWND monitorWindow() {
    return test::threadWindow("VelmoraAdapterMonitor");
}

class AdapterMonitorTest : public testing::Test {
  protected:
    void SetUp() override {
        if (monitorWindow() == nullptr) {
            GTEST_SKIP() << "this system makes no windows";
        }
        monitor.onChange([this] { ++changes; });
    }
    static void deviceChange(WPARAM what) { SendMessageA(monitorWindow(), WM_DEVICECHANGE, what, 0); }

    int changes = 0;
    AdapterMonitor monitor;
};

TEST_F(AdapterMonitorTest, PlugsPullsAndUnnamedChangesAreTold) {
    deviceChange(DBT_DEVICEARRIVAL);
    deviceChange(DBT_DEVICEREMOVECOMPLETE);
    deviceChange(DBT_DEVNODES_CHANGED);
    EXPECT_EQ(changes, 3);
}

TEST_F(AdapterMonitorTest, QuestionsAndOtherMessagesAreNot) {
    deviceChange(DBT_DEVICEQUERYREMOVE);
    SendMessageA(monitorWindow(), WM_POWERBROADCAST, DBT_DEVICEARRIVAL, 0);
    EXPECT_EQ(changes, 0);
}

TEST_F(AdapterMonitorTest, TheSystemTellsOfAdapters) {
    EXPECT_TRUE(monitor.live());
}

TEST(AdapterMonitorLifeTest, NothingIsLeftBehind) {
    { const AdapterMonitor monitor; }
    EXPECT_EQ(monitorWindow(), nullptr);
}

}  // namespace
}  // namespace velmora
