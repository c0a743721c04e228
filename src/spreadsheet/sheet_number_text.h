// The texts of numbers in a sheet.
#pragma once

#include <string>

namespace velmora {

/// A number in exponent form, as the Organiser takes it whatever its size: one digit, ".", 1 to 11 digits
/// without trailing zeros, "E" and the power of ten: 2 is "2.0E0", 0.00001 is "1.0E-5". The pattern is
/// "0.0##########E-". Correctly rounded to 12 digits, independent of any locale; -0 is "0.0E0". Infinities
/// and NaN, which only a damaged file holds, are "ERR".
std::string exponentText(double value);

/// The plain text form of a number (base/number_text.h); "ERR" for infinities and NaN.
std::string plainCellText(double value);

}  // namespace velmora
