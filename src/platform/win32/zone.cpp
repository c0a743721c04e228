#include "platform/zone.h"

#include <windows.h>

#include "platform/zone_bias.h"

namespace velmora {

ZoneInformation zoneInformation() {
    // A failing call leaves the zeros: universal time.
    TIME_ZONE_INFORMATION zone{};
    const DWORD result = GetTimeZoneInformation(&zone);
    return zoneFromBias({static_cast<std::int32_t>(zone.Bias), static_cast<std::int32_t>(zone.StandardBias),
                         static_cast<std::int32_t>(zone.DaylightBias), result == TIME_ZONE_ID_DAYLIGHT});
}

}  // namespace velmora
