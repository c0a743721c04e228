// The machine's clock.
#pragma once

#include "base/clock.h"

namespace velmora {

/// Wall clock by GetLocalTime and GetSystemTime, in the zone that Windows is set to; follows a change of it
/// while the program runs.
class Win32Clock : public Clock {
  public:
    DateTime localTime() const override;
    DateTime universalTime() const override;
    /// Fractions are whole milliseconds.
    double secondsSinceMidnight() const override;
    std::chrono::microseconds monotonic() const override;
};

}  // namespace velmora
