// The machine's clock.
#pragma once

#include <functional>

#include "base/clock.h"

namespace velmora {

/// Wall clock in the zone of the process, or of the system if TZ is not set; follows changes of either while
/// the program runs.
class PosixClock : public Clock {
  public:
    using Now = std::function<std::chrono::system_clock::time_point()>;

    /// `now`: where the instants come from.
    explicit PosixClock(Now now = std::chrono::system_clock::now);

    DateTime localTime() const override;
    DateTime universalTime() const override;
    double secondsSinceMidnight() const override;
    std::chrono::microseconds monotonic() const override;

  private:
    Now now_;
};

}  // namespace velmora
