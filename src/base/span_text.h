// Spans of time as texts.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace velmora {

/// So many seconds, which are not negative: "0:08", "1:05", "2:01:05".
std::string spanText(std::int64_t seconds);
/// Seconds with their thousandths: "0.008", "65.000", "-1.500".
std::string exactSecondsText(std::chrono::nanoseconds span);

}  // namespace velmora
