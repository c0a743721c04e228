// Classes of ASCII characters. The C library's depend on the locale, and take no negative char.
#pragma once

namespace velmora {

/// A to Z and a to z.
constexpr bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// 0 to 9.
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace velmora
