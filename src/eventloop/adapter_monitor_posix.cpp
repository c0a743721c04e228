#include <libudev.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <functional>
#include <utility>

#include "eventloop/adapter_monitor.h"

namespace velmora {
namespace {

struct Release {
    void operator()(udev* library) const { udev_unref(library); }
    void operator()(udev_monitor* monitor) const { udev_monitor_unref(monitor); }
    void operator()(udev_device* device) const { udev_device_unref(device); }
};

/// The device manager's own mark that it runs. The library listens without it, and hears nothing.
constexpr const char* kControl = "/run/udev/control";

}  // namespace

/// The device manager's announcements, which come when it has set a device's permissions and links.
class AdapterMonitor::Watch {
  public:
    explicit Watch(std::function<void()> changed) : changed_(std::move(changed)) {
        if (::access(kControl, F_OK) != 0) {
            return;
        }
        library_.reset(udev_new());
        monitor_.reset(library_ ? udev_monitor_new_from_netlink(library_.get(), "udev") : nullptr);
        if (!monitor_ ||
            udev_monitor_filter_add_match_subsystem_devtype(monitor_.get(), "tty", nullptr) < 0 ||
            udev_monitor_enable_receiving(monitor_.get()) < 0) {
            monitor_.reset();
            return;
        }
        notifier_ =
            std::make_unique<QSocketNotifier>(udev_monitor_get_fd(monitor_.get()), QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { read(); });
    }

    bool live() const { return monitor_ != nullptr; }

  private:
    /// What is read is not looked at: by now the device may be gone again.
    void read() {
        bool any = false;
        while (const auto device =
                   std::unique_ptr<udev_device, Release>(udev_monitor_receive_device(monitor_.get()))) {
            any = true;
        }
        if (any) {
            changed_();
        }
    }

    std::function<void()> changed_;
    std::unique_ptr<udev, Release> library_;
    std::unique_ptr<udev_monitor, Release> monitor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

AdapterMonitor::AdapterMonitor() : watch_(std::make_unique<Watch>([this] { tell(); })) {}
AdapterMonitor::~AdapterMonitor() = default;

bool AdapterMonitor::live() const {
    return watch_->live();
}

}  // namespace velmora
