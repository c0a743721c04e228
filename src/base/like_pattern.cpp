#include "base/like_pattern.h"

#include <cstddef>

namespace velmora {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

/// Whether `byte` is in the list between the brackets, which has no leading "!".
bool inList(unsigned char byte, std::string_view list) {
    for (std::size_t i = 0; i < list.size(); ++i) {
        const auto low = static_cast<unsigned char>(list[i]);
        if (i + 2 < list.size() && list[i + 1] == '-') {
            if (byte >= low && byte <= static_cast<unsigned char>(list[i + 2])) {
                return true;
            }
            i += 2;
        } else if (byte == low) {
            return true;
        }
    }
    return false;
}

/// Matches one byte against the pattern element at `p` and moves `p` behind it.
bool matchesElement(char byte, std::string_view pattern, std::size_t& p) {
    const char element = pattern[p];
    if (element == '?') {
        ++p;
        return true;
    }
    if (element == '#') {
        ++p;
        return byte >= '0' && byte <= '9';
    }
    if (element == '[') {
        const std::size_t close = pattern.find(']', p + 1);
        if (close != kNone) {
            std::string_view list = pattern.substr(p + 1, close - p - 1);
            p = close + 1;
            // "[!]" is the exclamation mark itself; only with something behind it does it negate.
            const bool negated = list.size() > 1 && list.front() == '!';
            if (negated) {
                list.remove_prefix(1);
            }
            return inList(static_cast<unsigned char>(byte), list) != negated;
        }
    }
    ++p;
    return byte == element;
}

/// Moves `p` behind any "[]", which stands for nothing.
void skipEmptyLists(std::string_view pattern, std::size_t& p) {
    while (pattern.substr(p, 2) == "[]") {
        p += 2;
    }
}

}  // namespace

bool likeMatches(std::string_view text, std::string_view pattern) {
    std::size_t t = 0;
    std::size_t p = 0;
    // Where to go back to when a later element fails: only the last "*" ever needs widening.
    std::size_t starPattern = kNone;
    std::size_t starText = 0;
    while (true) {
        skipEmptyLists(pattern, p);
        if (p < pattern.size() && pattern[p] == '*') {
            starPattern = ++p;
            starText = t;
            continue;
        }
        if (t == text.size() && p == pattern.size()) {
            return true;
        }
        if (t < text.size() && p < pattern.size() && matchesElement(text[t], pattern, p)) {
            ++t;
            continue;
        }
        if (starPattern == kNone || starText >= text.size()) {
            return false;
        }
        p = starPattern;
        t = ++starText;
    }
}

}  // namespace velmora
