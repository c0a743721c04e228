// What a receiver makes of bytes that were sent at another rate or in another form than it expects.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "serial/mode_string.h"

namespace velmora {

/// A byte as a receiver takes it off the line.
struct SampledByte {
    char value = 0;
    bool framingError = false;  ///< there was no stop bit where one belongs
    bool parityError = false;
    bool lineBreak = false;  ///< the line was low from the start bit to the stop bit; `framingError` too
};

/// Computes the line's levels, start, data, parity and stop bits, of some bytes that follow each other
/// without a pause on a line that is idle before and after them, and samples these as a receiver does: each
/// bit in its middle, counted from the falling edge of the start bit. A start bit that is gone by its middle
/// is none; behind a missing stop bit the receiver waits for the line to be high again. Both rates 1 to
/// 4,000,000.
std::vector<SampledByte> sampledBytes(std::string_view bytes, const LineSettings& sender,
                                      const LineSettings& receiver);

/// Only the values of sampledBytes.
std::string sampledValues(std::string_view bytes, const LineSettings& sender, const LineSettings& receiver);

}  // namespace velmora
