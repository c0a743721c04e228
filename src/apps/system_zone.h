// The machine's time zone as the time services ask for it.
#pragma once

#include <cstdint>

#include "platform/zone.h"
#include "services/time_services.h"

namespace velmora {

class SystemZone : public ZoneSource {
  public:
    std::int32_t offsetMinutes() const override { return zoneInformation().offsetMinutes; }
    bool daylight() const override { return zoneInformation().daylight; }
};

}  // namespace velmora
