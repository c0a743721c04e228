#include "spreadsheet/sheet_number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "base/number_text.h"

namespace velmora {

std::string exponentText(double value) {
    if (!std::isfinite(value)) {
        return "ERR";
    }
    if (value == 0) {
        return "0.0E0";
    }
    constexpr int kFractionDigits = 11;
    std::array<char, 48> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::scientific, kFractionDigits);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
    const std::size_t mark = text.find('e');
    std::string out(text.substr(0, mark));
    out.erase(out.find_last_not_of('0') + 1);
    if (out.back() == '.') {
        out += '0';
    }
    out += 'E';
    std::string_view exponent = text.substr(mark + 1);
    if (exponent.front() == '-') {
        out += '-';
    }
    exponent.remove_prefix(1);
    while (exponent.size() > 1 && exponent.front() == '0') {
        exponent.remove_prefix(1);
    }
    return out.append(exponent);
}

std::string plainCellText(double value) {
    return std::isfinite(value) ? plainText(value) : "ERR";
}

}  // namespace velmora
