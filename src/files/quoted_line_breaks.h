// Fields in quotes that go on in the next line.
#pragma once

#include <string_view>

#include "files/remarks.h"

namespace velmora {

/// How quotes within a field in quotes are written: doubled, or as they are, as in worksheets of ours. There
/// a line whose last field ends with a quote is taken to end it.
enum class InnerQuotes { Doubled, AsTheyAre };

/// Tells of each line of a text of separated fields that ends within a field in quotes: our readers know no
/// such field, so that each of its lines is a record or a row of its own. `separators`: the signs that may
/// stand between fields.
void tellQuotedLineBreaks(std::string_view text, std::string_view separators, InnerQuotes innerQuotes,
                          const Tell& tell);

}  // namespace velmora
