// Spans of time as texts.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

/// So many seconds, which are not negative: "0:08", "1:05", "2:01:05".
std::string spanText(std::int64_t seconds);

}  // namespace velmora
