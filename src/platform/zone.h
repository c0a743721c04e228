// The time zone of this machine.
#pragma once

namespace velmora {

/// How local time relates to universal time at one instant.
struct ZoneInformation {
    int offsetMinutes = 0;  ///< local time minus universal time, whole minutes towards zero
    bool daylight = false;  ///< whether the clocks are ahead because it is summer

    friend bool operator==(const ZoneInformation&, const ZoneInformation&) = default;
};

/// The zone's present state. RunTimeError 6 when the system tells an offset that is no 16-bit number.
ZoneInformation zoneInformation();

}  // namespace velmora
