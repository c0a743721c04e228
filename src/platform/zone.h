// The time zone of this machine.
#pragma once

#include <chrono>

namespace velmora {

/// How local time relates to universal time at one instant.
struct ZoneInformation {
    int offsetMinutes = 0;  ///< local time minus universal time, whole minutes towards zero
    bool daylight = false;  ///< whether the clocks are ahead because it is summer

    friend bool operator==(const ZoneInformation&, const ZoneInformation&) = default;
};

/// The zone's state at an instant; programs ask for the present one.
///
/// Some zones are described with a negative daylight saving time: Irish law calls winter the exception and
/// summer the standard. `daylight` then still means that the clocks are ahead, which is what people expect of
/// a mark for summer time.
ZoneInformation zoneInformation(std::chrono::system_clock::time_point instant);

}  // namespace velmora
