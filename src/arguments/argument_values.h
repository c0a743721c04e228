// Values on command lines.
#pragma once

#include <charconv>
#include <string>
#include <string_view>

#include "arguments/usage_error.h"

namespace velmora {

/// Throws the UsageError for a value: `--baud: "fast" is not a line speed`.
[[noreturn]] inline void wrongValue(std::string_view option, std::string_view value,
                                    std::string_view expected) {
    throw UsageError(std::string(option) + ": \"" + std::string(value) + "\" is not " +
                     std::string(expected));
}

/// A number that takes up the whole text and lies within the bounds. `base`: that of a whole number, where it
/// is not 10. UsageError, which says that something `expected` was.
template <typename Number, typename... Base>
Number numberValue(std::string_view option, std::string_view value, Number least, Number most,
                   std::string_view expected, Base... base) {
    Number result{};
    const char* end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, result, base...);
    // Written so that what is not a number at all fails too.
    if (error != std::errc() || stop != end || !(result >= least && result <= most)) {
        wrongValue(option, value, expected);
    }
    return result;
}

}  // namespace velmora
