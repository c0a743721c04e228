#include "base/byte_text.h"
#include "base/system_text.h"

namespace velmora {

std::string toSystemText(std::string_view windows1252) {
    return std::string(windows1252);
}

std::optional<std::string> fromSystemText(std::string_view text) {
    return toUtf8Exact(text) ? std::optional(std::string(text)) : std::nullopt;
}

std::string utf8OfSystemText(std::string_view text) {
    return toUtf8(text);
}

std::string systemTextOfUtf8(std::string_view utf8) {
    return fromUtf8(utf8).value_or(std::string());
}

}  // namespace velmora
