#include "platform/zone_bias.h"

#include <limits>

#include "base/run_time_error.h"

namespace velmora {

ZoneInformation zoneFromBias(const ZoneBias& zone) {
    const std::int64_t total =
        std::int64_t{zone.bias} + (zone.daylight ? zone.daylightBias : zone.standardBias);
    const std::int64_t offset = -total;
    if (offset < std::numeric_limits<std::int16_t>::min() ||
        offset > std::numeric_limits<std::int16_t>::max()) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return {static_cast<int>(offset), zone.daylight};
}

}  // namespace velmora
