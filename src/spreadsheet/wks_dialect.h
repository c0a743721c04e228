// The two ways in which the tokens of a worksheet formula are used.
#pragma once

namespace velmora {

/// Own: the system's own tokens, in which 47 is CHOOSE, 48 is MOD and 4 is unknown. Common: those that other
/// programs read and write: 4 stands for parentheses around the operand before it, 47 is MOD, 48 is CHOOSE
/// with an argument count.
enum class WksDialect { Own = 0, Common = 1 };

}  // namespace velmora
