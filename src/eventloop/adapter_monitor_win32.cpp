// The first of these has the types of the others.
// clang-format off
#include <windows.h>
#include <dbt.h>
// clang-format on

#include <functional>
#include <utility>

#include "eventloop/adapter_monitor.h"
#include "serial/com_port_interface_win32.h"

namespace velmora {
namespace {

constexpr const char* kWindowClass = "VelmoraAdapterMonitor";

}  // namespace

/// A window that is never shown, whose messages the event loop dispatches. Not a message-only window: those
/// are not told of the computer's sleep.
class AdapterMonitor::Watch {
  public:
    explicit Watch(std::function<void(AdapterEvent)> tell) : tell_(std::move(tell)) {
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = take;
        windowClass.hInstance = GetModuleHandleA(nullptr);
        windowClass.lpszClassName = kWindowClass;
        RegisterClassA(&windowClass);
        window_ = CreateWindowA(kWindowClass, "Velmora", WS_OVERLAPPED, 0, 0, 0, 0, nullptr, nullptr,
                                windowClass.hInstance, nullptr);
        if (window_ == nullptr) {
            return;
        }
        SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        DEV_BROADCAST_DEVICEINTERFACE_A filter{};
        filter.dbcc_size = sizeof filter;
        filter.dbcc_devicetype = DBT_DEVTYP_DEVICEINTERFACE;
        filter.dbcc_classguid = kComPortInterface;
        notification_ = RegisterDeviceNotificationA(window_, &filter, DEVICE_NOTIFY_WINDOW_HANDLE);
    }
    ~Watch() {
        if (notification_ != nullptr) {
            UnregisterDeviceNotification(notification_);
        }
        if (window_ != nullptr) {
            DestroyWindow(window_);
        }
        UnregisterClassA(kWindowClass, GetModuleHandleA(nullptr));
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    bool live() const { return notification_ != nullptr; }

  private:
    static LRESULT CALLBACK take(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* self = reinterpret_cast<Watch*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        if (self != nullptr && message == WM_DEVICECHANGE) {
            self->deviceChanged(wParam);
        } else if (self != nullptr && message == WM_POWERBROADCAST) {
            self->powerChanged(wParam);
        } else if (self != nullptr && message == WM_NCDESTROY) {
            self->window_ = nullptr;
            SetWindowLongPtrA(window, GWLP_USERDATA, 0);
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }

    /// DBT_DEVNODES_CHANGED comes for drivers that announce no interface, and beside the others.
    void deviceChanged(WPARAM what) const {
        if (what == DBT_DEVICEARRIVAL || what == DBT_DEVICEREMOVECOMPLETE || what == DBT_DEVNODES_CHANGED) {
            tell_(AdapterEvent::Changed);
        }
    }

    void powerChanged(WPARAM what) const {
        if (what == PBT_APMSUSPEND) {
            tell_(AdapterEvent::Sleeps);
        } else if (what == PBT_APMRESUMEAUTOMATIC) {
            tell_(AdapterEvent::Wakes);
        }
    }

    std::function<void(AdapterEvent)> tell_;
    HWND window_ = nullptr;
    HDEVNOTIFY notification_ = nullptr;
};

AdapterMonitor::AdapterMonitor()
    : watch_(std::make_unique<Watch>([this](AdapterEvent event) { tell(event); })) {}
AdapterMonitor::~AdapterMonitor() = default;

bool AdapterMonitor::live() const {
    return watch_->live();
}

}  // namespace velmora
