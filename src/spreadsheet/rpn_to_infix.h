// From a postfix text to a formula's text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// How long the operands that wait during a conversion may be together, in bytes; beyond it the formula is
/// "ERR". Far above the 250 characters of a formula, and low enough that a file full of growing operands is
/// soon read.
constexpr std::size_t kLongestOperand = 4 * 1024;

/// Rebuilds a formula from blank-separated postfix tokens: parentheses stand only where an operand ranks
/// below its operator, so those of a right operand of equal rank are lost ("A1 B1 C1 - -" is "A1-B1-C1").
/// An operator or function that finds too few operands takes empty ones of rank 0; operands that nothing
/// takes are dropped but the last. A character outside the grammar gives an empty text; a quote or function
/// token that is never closed "ERR". In the common dialect "()" puts its operand in parentheses.
/// RunTimeError 9 for a 102nd operand.
std::string RpnToInfix(std::string_view postfix, WksDialect dialect = WksDialect::Own);

}  // namespace velmora
