#include "ui/languages.h"

#include <algorithm>

#include "base/byte_text.h"

namespace velmora {

const std::vector<std::string_view>& knownLanguages() {
#ifdef VELMORA_TRANSLATIONS
    static const std::vector<std::string_view> known{"en", "de", "es", "fr", "it", "nl"};
#else
    static const std::vector<std::string_view> known{"en"};
#endif
    return known;
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
