#include "base/system_text.h"

#include "base/byte_text.h"

namespace velmora {

std::string shownText(std::string_view text) {
    const std::optional<std::string> exact = fromSystemText(text);
    return exact ? *exact : asciiOf(text);
}

}  // namespace velmora
