#include <windows.h>

#include <array>
#include <string>

#include "spreadsheet/system_number_signs.h"

namespace velmora {
namespace {

/// The system's tag for a locale with a POSIX name: "de-DE" for "de_DE.UTF-8".
std::wstring tagOf(const std::string& name) {
    std::wstring tag;
    for (const char c : name.substr(0, name.find_first_of(".@"))) {
        tag += c == '_' ? L'-' : static_cast<wchar_t>(static_cast<unsigned char>(c));
    }
    return tag;
}

/// The search for a tag among those that the system lists.
struct TagSearch {
    const std::wstring& wanted;
    bool found = false;
};

BOOL CALLBACK compareTag(LPWSTR listed, DWORD, LPARAM search) {
    auto& state = *reinterpret_cast<TagSearch*>(search);
    const std::wstring& wanted = state.wanted;
    state.found = CompareStringOrdinal(listed, -1, wanted.c_str(), -1, TRUE) == CSTR_EQUAL;
    return state.found ? FALSE : TRUE;
}

/// Whether the tag means a locale to the system, which answers for every well-formed one.
bool isKnown(const std::wstring& tag) {
    const LCID locale = LocaleNameToLCID(tag.c_str(), LOCALE_ALLOW_NEUTRAL_NAMES);
    if (locale != 0 && locale != LOCALE_CUSTOM_UNSPECIFIED) {
        return true;
    }
    // That number is all those have that are known without one of their own, such as "en-DE", and those that
    // mean nothing.
    TagSearch search{tag};
    EnumSystemLocalesEx(compareTag, LOCALE_ALL, reinterpret_cast<LPARAM>(&search), nullptr);
    return search.found;
}

/// The first character of a text of the locale, 0 when it has none; no tag stands for the user's own. The
/// wide function is asked: signs such as the narrow no-break blank are not in the ANSI code page.
wchar_t firstOf(const wchar_t* tag, LCTYPE type) {
    std::array<wchar_t, 16> text{};
    return GetLocaleInfoEx(tag, type, text.data(), static_cast<int>(text.size())) > 0 ? text[0] : L'\0';
}

}  // namespace

std::optional<SystemNumberSigns> systemNumberSigns(const std::string& name) {
    const std::wstring named = tagOf(name);
    if (!name.empty() && (named.empty() || !isKnown(named))) {
        return std::nullopt;
    }
    const wchar_t* const tag = name.empty() ? LOCALE_NAME_USER_DEFAULT : named.c_str();
    // What the user changed in the control panel belongs to the user's own, not to a named locale.
    const LCTYPE source = name.empty() ? 0 : LOCALE_NOUSEROVERRIDE;
    const wchar_t decimal = firstOf(tag, LOCALE_SDECIMAL | source);
    if (decimal == L'\0') {
        return std::nullopt;
    }
    const wchar_t grouping = firstOf(tag, LOCALE_SGROUPING | source);
    const bool groups = grouping >= L'1' && grouping <= L'9';
    return SystemNumberSigns{decimal, firstOf(tag, LOCALE_STHOUSAND | source), groups};
}

}  // namespace velmora
