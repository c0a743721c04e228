// Any text as a number of a user: what is read is finite, and what is written of it is read as the same.
//
// Input: a byte that chooses the signs, then the text. It is also the name of a locale.
#include <cmath>
#include <cstdint>
#include <string>

#include "input.h"
#include "require.h"
#include "spreadsheet/number_locale.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    constexpr NumberLocale kLocales[] = {{'.', ','}, {',', '.'}, {',', '\xA0'}, {'.', '\''}, {'.', '\0'}};
    fuzz::Input input(data, size);
    const std::uint8_t choice = input.byte();
    const std::string text = input.bytes(size);
    if (choice == 255) {
        namedNumberLocale(text);
        return 0;
    }
    const NumberLocale& locale = kLocales[choice % std::size(kLocales)];
    if (const std::optional<double> value = localeNumber(text, locale)) {
        fuzz::require(std::isfinite(*value));
        const std::string written = localeNumberText(*value, locale);
        const std::optional<double> again = localeNumber(written, locale);
        fuzz::require(again && localeNumberText(*again, locale) == written);
    }
    return 0;
}
