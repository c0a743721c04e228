// The first of these has the types of the others.
// clang-format off
#include <windows.h>
#include <dbt.h>
// clang-format on

#include <functional>
#include <utility>

#include "eventloop/adapter_monitor.h"
#include "eventloop/hidden_window_win32.h"
#include "serial/com_port_interface_win32.h"

namespace velmora {

class AdapterMonitor::Watch {
  public:
    explicit Watch(std::function<void()> changed)
        : changed_(std::move(changed)), window_("VelmoraAdapterMonitor", [this](UINT message, WPARAM what) {
              if (message == WM_DEVICECHANGE && isPlugOrPull(what)) {
                  changed_();
              }
              return false;
          }) {
        if (window_.handle() == nullptr) {
            return;
        }
        DEV_BROADCAST_DEVICEINTERFACE_A filter{};
        filter.dbcc_size = sizeof filter;
        filter.dbcc_devicetype = DBT_DEVTYP_DEVICEINTERFACE;
        filter.dbcc_classguid = kComPortInterface;
        notification_ = RegisterDeviceNotificationA(window_.handle(), &filter, DEVICE_NOTIFY_WINDOW_HANDLE);
    }
    ~Watch() {
        if (notification_ != nullptr) {
            UnregisterDeviceNotification(notification_);
        }
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    bool live() const { return notification_ != nullptr; }

  private:
    /// DBT_DEVNODES_CHANGED comes for drivers that announce no interface, and beside the others.
    static bool isPlugOrPull(WPARAM what) {
        return what == DBT_DEVICEARRIVAL || what == DBT_DEVICEREMOVECOMPLETE || what == DBT_DEVNODES_CHANGED;
    }

    std::function<void()> changed_;
    HiddenWindow window_;
    HDEVNOTIFY notification_ = nullptr;
};

AdapterMonitor::AdapterMonitor() : watch_(std::make_unique<Watch>([this] { tell(); })) {}
AdapterMonitor::~AdapterMonitor() = default;

bool AdapterMonitor::live() const {
    return watch_->live();
}

}  // namespace velmora
