// The system's news of serial adapters as events of the event loop.
#pragma once

#include <memory>

#include "serial/adapter_events.h"

namespace velmora {

/// Hears of adapters from the device manager: udev on Linux, device notifications on Windows. Needs the
/// application object.
class AdapterMonitor : public AdapterEvents {
  public:
    AdapterMonitor();
    ~AdapterMonitor() override;
    AdapterMonitor(const AdapterMonitor&) = delete;
    AdapterMonitor& operator=(const AdapterMonitor&) = delete;

    /// False where no device manager runs, as in most containers.
    bool live() const override;

  private:
    class Watch;  // the system's side

    std::unique_ptr<Watch> watch_;
};

}  // namespace velmora
