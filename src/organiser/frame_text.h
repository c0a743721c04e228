// Frames as lines for --trace.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// One frame as a short text: type, sequence, and the data with unprintable bytes as <hex>:
/// "ACK 1", "CONNECT", "DISCON EE", "DATA 2 len=5 hello". A frame whose check is wrong: "damaged" and its
/// bytes in hexadecimal.
std::string frameText(std::string_view frame);

}  // namespace velmora
