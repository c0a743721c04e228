// The names of earlier copies: that of the file with the moment at which it was replaced.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "base/clock.h"

namespace velmora {

/// "Memo (2026-11-21 22.20.05).odb" for the base name "Memo" and the extension "odb"; without an extension
/// there is no "." either. From the second copy of a moment on the `number` follows: "Memo (2026-11-21
/// 22.20.05) (2).odb".
std::string earlierCopyName(std::string_view baseName, std::string_view extension, const DateTime& moment,
                            int number);

/// The moment in a name of this form; nothing for any other name.
std::optional<DateTime> momentOfEarlierCopy(std::string_view name);

/// The time from one moment to a later one on the calendar, negative when it is earlier.
std::chrono::seconds timeBetween(const DateTime& from, const DateTime& to);

}  // namespace velmora
