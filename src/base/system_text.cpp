#include "base/system_text.h"

#include <algorithm>

namespace velmora {

std::string shownText(std::string_view text) {
    if (std::optional<std::string> exact = fromSystemText(text)) {
        return *exact;
    }
    std::string shown(text);
    std::replace_if(
        shown.begin(), shown.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; }, '?');
    return shown;
}

}  // namespace velmora
