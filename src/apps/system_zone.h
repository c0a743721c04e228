// The machine's time zone as the time services ask for it.
#pragma once

#include <chrono>
#include <cstdint>

#include "platform/zone.h"
#include "services/time_services.h"

namespace velmora {

class SystemZone : public ZoneSource {
  public:
    std::int32_t offsetMinutes() const override { return now().offsetMinutes; }
    bool daylight() const override { return now().daylight; }

  private:
    static ZoneInformation now() { return zoneInformation(std::chrono::system_clock::now()); }
};

}  // namespace velmora
