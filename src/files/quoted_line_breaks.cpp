#include "files/quoted_line_breaks.h"

#include <cstddef>
#include <string>

namespace velmora {
namespace {

constexpr char kQuote = '"';

/// Whether a line, which begins within a field in quotes or not, ends within one.
bool endsInside(std::string_view line, std::string_view separators, bool inside) {
    bool atFieldStart = !inside;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (inside && line[i] == kQuote) {
            inside = i + 1 < line.size() && line[i + 1] == kQuote;
            i += inside ? 1 : 0;
        } else if (atFieldStart && line[i] == kQuote) {
            inside = true;
        }
        atFieldStart = !inside && separators.find(line[i]) != std::string_view::npos;
    }
    return inside;
}

bool lastFieldEndsWithQuote(std::string_view line, std::string_view separators) {
    const std::size_t last = line.find_last_not_of(std::string(separators) + " ");
    return last != std::string_view::npos && line[last] == kQuote;
}

}  // namespace

void tellQuotedLineBreaks(std::string_view text, std::string_view separators, InnerQuotes innerQuotes,
                          const Tell& tell) {
    bool inside = false;
    for (std::size_t number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        line.remove_suffix(line.ends_with('\r') ? 1 : 0);
        const bool wasInside = inside;
        inside = endsInside(line, separators, inside) &&
                 !(innerQuotes == InnerQuotes::AsTheyAre && lastFieldEndsWithQuote(line, separators));
        if (inside && !wasInside && !text.empty()) {
            tell("line " + std::to_string(number) +
                 ": a field in quotes goes on in the next line, and is cut there");
        }
    }
}

}  // namespace velmora
