// The languages that the windows speak.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Codes (ISO 639-1) of the languages that this build has, English, that of the program's own texts, first.
const std::vector<std::string_view>& knownLanguages();

/// The first of the wanted languages (BCP 47, for example "de-AT") that is known, as its code; English when
/// none is.
std::string_view bestLanguage(const std::vector<std::string>& wanted);

/// What a language calls itself, in UTF-8; empty for another code.
std::string_view nativeName(std::string_view language);

}  // namespace velmora
