// Texts in the system's narrow encoding: that of paths, arguments and the console.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// A Windows-1252 text in the system's encoding: UTF-8, or on Windows the ANSI code page, which is taken for
/// Windows-1252. The five unassigned bytes become U+FFFD in UTF-8.
std::string toSystemText(std::string_view windows1252);
/// A text of the system as Windows-1252; nothing when it is not valid or a character has no byte.
std::optional<std::string> fromSystemText(std::string_view text);
/// A text of the system as Windows-1252, to be looked at: where it has no such form, "?" stands for every
/// byte that is not ASCII.
std::string shownText(std::string_view text);
/// A text of the system in UTF-8, for formats that want that; what is not valid stays as it is.
std::string utf8OfSystemText(std::string_view text);
/// A UTF-8 text in the system's encoding; empty when it has none there.
std::string systemTextOfUtf8(std::string_view utf8);

}  // namespace velmora
