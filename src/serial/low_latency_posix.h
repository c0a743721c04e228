// Asking a serial driver to hand over received bytes at once.
#pragma once

#include <linux/serial.h>

#include <functional>

namespace velmora {

/// The driver's low-latency flag (ASYNC_LOW_LATENCY), which drivers of adapters turn into the shortest time
/// that their chip holds bytes back for. Many have no such flag, and then nothing is done.
class LowLatency {
  public:
    /// The driver's settings, read (TIOCGSERIAL) or written (TIOCSSERIAL); below 0 when it has none.
    using Control = std::function<int(unsigned long request, serial_struct& settings)>;

    /// Sets the flag of an open device until giveBack.
    void take(const Control& control);
    /// Clears the flag if it was take that set it, also when other settings were changed meanwhile.
    void giveBack(const Control& control);
    /// Whether the device hands bytes over at once since take.
    bool taken() const { return taken_; }

  private:
    bool taken_ = false;
    bool ours_ = false;
};

}  // namespace velmora
