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

/// Whether the bytes are text in the code page (CP_ACP: the ANSI one), and no others stand for the same text:
/// in UTF-8 and in the double-byte pages of East Asia not all are.
bool isExactText(std::string_view bytes, unsigned codePage);

/// A UTF-8 text as UTF-16 and back.
std::wstring wideFromUtf8(std::string_view text);
std::string utf8FromWide(std::wstring_view text);

/// A text in the ANSI code page; nothing when a character is not in it.
std::optional<std::string> exactAnsi(std::wstring_view text);

/// A path in the ANSI code page that stands for exactly this file or folder: its own or, when that has other
/// characters, the one of its short names (GetShortPathNameW). Nothing where the volume keeps none.
std::optional<std::string> exactPath(const std::wstring& path);

/// exactPath or, when there is none, a path with "?" for every character that is not in the ANSI code page:
/// no file has such a name, so that it shows what is meant and never opens another.
std::string ansiPath(const std::wstring& path);

}  // namespace velmora
