#include <windows.h>

#include <array>

#include "spreadsheet/system_number_signs.h"

namespace velmora {
namespace {

/// The locale of a POSIX name; nothing when the system has no locale of that name.
std::optional<LCID> knownLocale(const std::string& name) {
    if (name.empty()) {
        return LOCALE_USER_DEFAULT;
    }
    std::wstring tag;
    for (const char c : name.substr(0, name.find_first_of(".@"))) {
        tag += c == '_' ? L'-' : static_cast<wchar_t>(static_cast<unsigned char>(c));
    }
    // Every well-formed tag has a number, of which this one stands for all that mean nothing to the system.
    const LCID locale = LocaleNameToLCID(tag.c_str(), LOCALE_ALLOW_NEUTRAL_NAMES);
    return locale == 0 || locale == LOCALE_CUSTOM_UNSPECIFIED ? std::nullopt : std::optional(locale);
}

/// The first character of a text of the locale, 0 when it has none. The wide function is asked: signs such as
/// the narrow no-break blank are not in the ANSI code page.
wchar_t firstOf(LCID locale, LCTYPE type) {
    std::array<wchar_t, 16> text{};
    return GetLocaleInfoW(locale, type, text.data(), static_cast<int>(text.size())) > 0 ? text[0] : L'\0';
}

}  // namespace

std::optional<SystemNumberSigns> systemNumberSigns(const std::string& name) {
    const std::optional<LCID> locale = knownLocale(name);
    if (!locale) {
        return std::nullopt;
    }
    // What the user changed in the control panel belongs to the user's own, not to a named locale.
    const LCTYPE source = name.empty() ? 0 : LOCALE_NOUSEROVERRIDE;
    const wchar_t decimal = firstOf(*locale, LOCALE_SDECIMAL | source);
    if (decimal == L'\0') {
        return std::nullopt;
    }
    const wchar_t grouping = firstOf(*locale, LOCALE_SGROUPING | source);
    const bool groups = grouping >= L'1' && grouping <= L'9';
    return SystemNumberSigns{decimal, groups ? firstOf(*locale, LOCALE_STHOUSAND | source) : L'\0'};
}

}  // namespace velmora
