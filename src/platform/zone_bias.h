// The arithmetic of a zone that is told as biases: minutes that local time lacks to universal time.
#pragma once

#include <cstdint>

#include "platform/zone.h"

namespace velmora {

/// A zone as GetTimeZoneInformation tells it, in minutes: universal time = local time + bias.
struct ZoneBias {
    std::int32_t bias = 0;          ///< what holds all year
    std::int32_t standardBias = 0;  ///< added to it outside daylight saving time, mostly 0
    std::int32_t daylightBias = 0;  ///< added to it in daylight saving time, mostly -60
    bool daylight = false;          ///< whether daylight saving time is in force: the function's result 2
};

/// The offset is minus the sum of the two biases in force. RunTimeError 6 when it is no 16-bit number.
ZoneInformation zoneFromBias(const ZoneBias& zone);

}  // namespace velmora
