// The tokens of a postfix text, which blanks separate.
#pragma once

#include <string_view>

#include "spreadsheet/wks_dialect.h"

namespace velmora {

/// Takes the first token off the text, with the blank behind it; empty where two blanks follow one another.
/// A quoted text is one token in the common dialect; the system's own cuts it at its blanks. Requires: a text
/// that is not empty.
std::string_view takePostfixToken(std::string_view& rest, WksDialect dialect);

/// Whether a token is a number as a whole: digits, "." and digits, "E" and an exponent.
bool isNumberToken(std::string_view token);

}  // namespace velmora
