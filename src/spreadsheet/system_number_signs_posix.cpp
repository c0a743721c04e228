#include <locale>
#include <stdexcept>

#include "spreadsheet/system_number_signs.h"

namespace velmora {

std::optional<SystemNumberSigns> systemNumberSigns(const std::string& name) {
    try {
        const std::locale locale(name);
        const auto& signs = std::use_facet<std::numpunct<wchar_t>>(locale);
        return SystemNumberSigns{signs.decimal_point(), signs.thousands_sep(), !signs.grouping().empty()};
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

}  // namespace velmora
