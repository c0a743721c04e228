#include "base/byte_text.h"
#include "base/system_text.h"

namespace velmora {

std::string toSystemText(std::string_view windows1252) {
    return toUtf8(windows1252);
}

std::optional<std::string> fromSystemText(std::string_view text) {
    return fromUtf8(text);
}

std::string utf8OfSystemText(std::string_view text) {
    return std::string(text);
}

std::string systemTextOfUtf8(std::string_view utf8) {
    return std::string(utf8);
}

}  // namespace velmora
