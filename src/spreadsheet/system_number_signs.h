// What the system knows about how numbers are written.
#pragma once

#include <optional>
#include <string>

namespace velmora {

/// The signs of a locale as Unicode characters.
struct SystemNumberSigns {
    wchar_t decimal = L'.';
    wchar_t thousands = L'\0';  ///< may be there although digits are not grouped
    bool groups = false;        ///< whether digits are grouped
};

/// The signs of a locale by its POSIX name ("de_DE.UTF-8"); "" is the user's own, with what the user changed.
/// Nothing when the system does not know the name: std::locale (ISO/IEC 14882) on POSIX systems,
/// GetLocaleInfo (Win32, winnls.h) on Windows.
std::optional<SystemNumberSigns> systemNumberSigns(const std::string& name);

}  // namespace velmora
