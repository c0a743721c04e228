#include "base/temporary_name.h"

#include <algorithm>

#include "base/ascii.h"

namespace velmora {

std::string temporaryName(std::uint32_t number) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string letters(kTemporaryLetters, '0');
    for (char& letter : letters) {
        letter = kDigits[number % 16];
        number /= 16;
    }
    std::reverse(letters.begin(), letters.end());
    return std::string(kTemporaryPrefix) + letters + std::string(kTemporarySuffix);
}

bool isTemporaryName(std::string_view name) {
    if (name.size() != kTemporaryPrefix.size() + kTemporaryLetters + kTemporarySuffix.size() ||
        !name.starts_with(kTemporaryPrefix) || !name.ends_with(kTemporarySuffix)) {
        return false;
    }
    const std::string_view letters = name.substr(kTemporaryPrefix.size(), kTemporaryLetters);
    return std::all_of(letters.begin(), letters.end(), [](char c) { return isLetter(c) || isDigit(c); });
}

}  // namespace velmora
