// The system's names, which are UTF-16, as narrow texts and back.
//
// The narrow functions of Windows write "?" or a similar letter for a character that the ANSI code page
// lacks, so a name they tell may be that of another file. Here such a name is told apart.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// A text of the ANSI code page as UTF-16, by MultiByteToWideChar.
std::wstring wideFromAnsi(std::string_view text);

/// A text in the ANSI code page; nothing when a character is not in it.
std::optional<std::string> exactAnsi(std::wstring_view text);

/// A path in the ANSI code page. One that is not in it is given by its short names (GetShortPathNameW), where
/// the volume keeps them; else with "?" or a similar letter.
std::string ansiPath(const std::wstring& path);

}  // namespace velmora
