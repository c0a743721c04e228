// Counting in label texts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

class MainView;

/// The text of a file counter after `amount` more files, in groups of three digits: "1,234".
std::string addToFileCount(std::string_view label, std::int16_t amount);

/// The text of a byte counter after `amount` more bytes: grouped digits below a million, from there on
/// millions with two decimals ("1.00Mb"). Texts in "kb" are read, never written. Since two decimals are all
/// that is kept, less than 5000 bytes added to a million or more are lost.
std::string addToByteCount(std::string_view label, std::int16_t amount);

/// Adds to one of the four counters that the view's labels hold (StatsKind), or sets all of them to "0".
/// Other kinds do nothing.
void SetStats(MainView& view, std::int32_t which, std::int16_t amount);

}  // namespace velmora
