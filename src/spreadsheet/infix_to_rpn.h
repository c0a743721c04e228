// From a formula's text to a postfix text.
#pragma once

#include <string>
#include <string_view>

#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// Calls nested deeper than this are RunTimeError 9, as are more than 101 operators that wait at once.
constexpr int kDeepestCall = 101;

/// The postfix tokens of a formula (without "="), separated by single blanks: operands, operator symbols ("_"
/// for unary minus, "^" for "**", "&", "|" and "!" for AND, OR and NOT) and calls as "SUM(3)". Empty when the
/// text cannot be converted: a character outside the grammar, parentheses that do not pair, a quote that is
/// never closed. What fails inside one argument of a call empties that argument only.
///
/// Three rules of the system's own dialect are worth knowing:
/// - Operators of equal rank group to the right ("A1-B1-C1" is "A1 B1 C1 - -"); the decoder writes such a
///   chain back without parentheses.
/// - Arguments are split at every ",", inside nested calls and quotes too.
/// - A number goes on with digits, "." and "E" only, so "5.0E-1" is "5.0E", "-" and "1".
/// The common dialect groups to the left, splits where a reader would, takes the sign of an exponent, and
/// writes "()" behind an operand whose parentheses matter.
std::string InfixToRpn(std::string_view infix, WksDialect dialect = WksDialect::Own);

}  // namespace velmora
