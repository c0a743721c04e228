#include <windows.h>

#include <functional>
#include <utility>

#include "eventloop/hidden_window_win32.h"
#include "eventloop/system_sleep.h"

namespace velmora {

/// Computers that only doze ("Modern Standby") tell of it to those who have asked for it; the others tell all
/// windows, and then the same comes twice.
class SystemSleep::Watch {
  public:
    explicit Watch(std::function<void(SleepEvent)> tell)
        : tell_(std::move(tell)), window_("VelmoraSleep", [this](UINT message, WPARAM what) {
              if (message == WM_POWERBROADCAST) {
                  powerChanged(what);
              }
              return false;
          }) {
        if (window_.handle() != nullptr) {
            notification_ = RegisterSuspendResumeNotification(window_.handle(), DEVICE_NOTIFY_WINDOW_HANDLE);
        }
    }
    ~Watch() {
        if (notification_ != nullptr) {
            UnregisterSuspendResumeNotification(notification_);
        }
        keepAwake(false);
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// Holds for the calling thread, which is the program's one.
    static void keepAwake(bool wanted) {
        SetThreadExecutionState(wanted ? ES_CONTINUOUS | ES_SYSTEM_REQUIRED : ES_CONTINUOUS);
    }

  private:
    void powerChanged(WPARAM what) {
        if (what == PBT_APMSUSPEND && !std::exchange(asleep_, true)) {
            tell_(SleepEvent::Sleeps);
        } else if (what == PBT_APMRESUMEAUTOMATIC && std::exchange(asleep_, false)) {
            tell_(SleepEvent::Wakes);
        }
    }

    std::function<void(SleepEvent)> tell_;
    bool asleep_ = false;
    HiddenWindow window_;
    HPOWERNOTIFY notification_ = nullptr;
};

SystemSleep::SystemSleep() : watch_(std::make_unique<Watch>([this](SleepEvent event) { tell(event); })) {}
SystemSleep::~SystemSleep() = default;

void SystemSleep::keepAwake(bool wanted) {
    Watch::keepAwake(wanted);
}

}  // namespace velmora
