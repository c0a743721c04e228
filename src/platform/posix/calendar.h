// Instants as calendar time, by the C library.
#pragma once

#include <chrono>
#include <ctime>

namespace velmora {

/// Whole seconds since 1970, fractions dropped downwards also before that.
std::time_t wholeSeconds(std::chrono::system_clock::time_point instant);

/// Local calendar time with its offset and daylight saving flag, by the zone in force now (TZ, else the
/// system's). Universal time for an instant that the C library cannot express.
std::tm localCalendar(std::time_t seconds);

}  // namespace velmora
