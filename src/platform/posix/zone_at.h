// The time zone at any instant.
#pragma once

#include <chrono>

#include "platform/zone.h"

namespace velmora {

/// The zone's state at an instant.
///
/// Some zones are described with a negative daylight saving time: Irish law calls winter the exception and
/// summer the standard. `daylight` then still means that the clocks are ahead, which is what people expect of
/// a mark for summer time.
ZoneInformation zoneInformation(std::chrono::system_clock::time_point instant);

}  // namespace velmora
