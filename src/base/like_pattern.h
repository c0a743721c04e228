// The wildcards of folder listings.
#pragma once

#include <string_view>

namespace velmora {

/// Whether a text matches a pattern as a whole, byte by byte: "*" any run, "?" any byte, "#" a digit,
/// "[list]" one byte of a list with ranges ("[A-CX]"), "[!list]" one byte outside it. "[]" stands for
/// nothing at all; a "[" that is never closed is an ordinary byte. Time is at most the
/// product of both lengths.
bool likeMatches(std::string_view text, std::string_view pattern);

}  // namespace velmora
