#include "base/path_rules.h"

namespace velmora {

std::string PathRules::baseName(std::string_view path) const {
    const std::string name = lastComponent(path);
    return name.substr(0, name.rfind('.'));
}

std::string PathRules::extension(std::string_view path) const {
    const std::string name = lastComponent(path);
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

}  // namespace velmora
