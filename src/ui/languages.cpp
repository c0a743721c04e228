#include "ui/languages.h"

#include <algorithm>
#include <array>

#include "base/byte_text.h"

namespace velmora {
namespace {

struct Language {
    std::string_view code;
    std::string_view name;
};
constexpr std::array<Language, 6> kLanguages{{{"en", "English"},
                                              {"de", "Deutsch"},
                                              {"es", "Español"},
                                              {"fr", "Français"},
                                              {"it", "Italiano"},
                                              {"nl", "Nederlands"}}};

}  // namespace

const std::vector<std::string_view>& knownLanguages() {
#ifdef VELMORA_TRANSLATIONS
    static const std::vector<std::string_view> known = [] {
        std::vector<std::string_view> codes;
        codes.reserve(kLanguages.size());
        for (const Language& language : kLanguages) {
            codes.push_back(language.code);
        }
        return codes;
    }();
#else
    static const std::vector<std::string_view> known{"en"};
#endif
    return known;
}

std::string_view nativeName(std::string_view language) {
    const auto* const found = std::ranges::find(kLanguages, language, &Language::code);
    return found == kLanguages.end() ? std::string_view() : found->name;
}

std::string_view bestLanguage(const std::vector<std::string>& wanted) {
    const std::vector<std::string_view>& known = knownLanguages();
    for (const std::string& name : wanted) {
        const std::string code = lowerCase(name.substr(0, name.find_first_of("-_")));
        if (const auto found = std::ranges::find(known, code); found != known.end()) {
            return *found;
        }
    }
    return known.front();
}

}  // namespace velmora
