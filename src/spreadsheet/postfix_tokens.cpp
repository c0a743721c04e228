#include "spreadsheet/postfix_tokens.h"

#include <algorithm>
#include <cstddef>

namespace velmora {

std::string_view takePostfixToken(std::string_view& rest, WksDialect dialect) {
    std::size_t from = 0;
    if (dialect == WksDialect::Common && rest.front() == '"') {
        from = std::min(rest.find('"', 1), rest.size());
    }
    const std::size_t length = std::min(rest.find(' ', from), rest.size());
    const std::string_view token = rest.substr(0, length);
    rest.remove_prefix(std::min(length + 1, rest.size()));
    return token;
}

bool isNumberToken(std::string_view token) {
    const auto takeDigits = [&] {
        std::size_t count = 0;
        while (count < token.size() && token[count] >= '0' && token[count] <= '9') {
            ++count;
        }
        token.remove_prefix(count);
        return count;
    };
    std::size_t digits = takeDigits();
    if (!token.empty() && token.front() == '.') {
        token.remove_prefix(1);
        digits += takeDigits();
    }
    if (digits > 0 && !token.empty() && (token.front() == 'E' || token.front() == 'e')) {
        token.remove_prefix(1);
        if (!token.empty() && (token.front() == '-' || token.front() == '+')) {
            token.remove_prefix(1);
        }
        digits = takeDigits();
    }
    return digits > 0 && token.empty();
}

}  // namespace velmora
