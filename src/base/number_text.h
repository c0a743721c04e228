// Numbers as texts, independent of the locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

/// The value of the longest numeric prefix of a text: blanks are ignored, "." is the decimal point, an
/// exponent ("E" or "D", either case) is allowed. 0 when there is none. Infinite when it is too large.
double numericValue(std::string_view text);

/// A number with up to 15 significant digits, the shortest that gives them back, with "." and without a
/// leading blank: "0.5", "1", "1E+20". From 1E+15 up and below 0.0001 in exponent form.
std::string plainText(double value);

/// Rounds to a whole number, halves to the even one, and checks the range; RunTimeError 6 outside it.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

/// A whole number in groups of three digits, pattern "#,0": "1,234,567", "-1,000", "0".
std::string groupedText(std::int64_t value);

}  // namespace velmora
