#include "spreadsheet/number_locale.h"

#include <array>
#include <cmath>

#include "base/ascii.h"
#include "base/number_text.h"
#include "spreadsheet/sheet_number_text.h"

namespace velmora {
namespace {

constexpr char kNoBreakBlank = '\xA0';

struct Language {
    std::string_view name;
    NumberLocale signs;
};

// A name with a country stands before its language alone.
constexpr std::array<Language, 33> kLanguages = {{
    {"C", {'.', '\0'}},
    {"POSIX", {'.', '\0'}},
    {"de_AT", {',', kNoBreakBlank}},
    {"de_CH", {'.', '\''}},
    {"de_LI", {'.', '\''}},
    {"es_MX", {'.', ','}},
    {"pt_PT", {',', kNoBreakBlank}},
    {"da", {',', '.'}},
    {"de", {',', '.'}},
    {"el", {',', '.'}},
    {"es", {',', '.'}},
    {"id", {',', '.'}},
    {"is", {',', '.'}},
    {"it", {',', '.'}},
    {"nl", {',', '.'}},
    {"pt", {',', '.'}},
    {"tr", {',', '.'}},
    {"bg", {',', kNoBreakBlank}},
    {"cs", {',', kNoBreakBlank}},
    {"fi", {',', kNoBreakBlank}},
    {"fr", {',', kNoBreakBlank}},
    {"hu", {',', kNoBreakBlank}},
    {"nb", {',', kNoBreakBlank}},
    {"no", {',', kNoBreakBlank}},
    {"pl", {',', kNoBreakBlank}},
    {"ru", {',', kNoBreakBlank}},
    {"sk", {',', kNoBreakBlank}},
    {"sv", {',', kNoBreakBlank}},
    {"uk", {',', kNoBreakBlank}},
    {"en", {'.', ','}},
    {"ja", {'.', ','}},
    {"ko", {'.', ','}},
    {"zh", {'.', ','}},
}};

/// A sign of the system as one byte; every blank that does not break is the one that Windows-1252 has.
char signByte(wchar_t sign, char otherwise) {
    if (sign == 0x202F || sign == 0xA0) {
        return kNoBreakBlank;
    }
    if (sign == 0x2019) {
        return '\'';
    }
    return sign > 0 && sign < 0x80 ? static_cast<char>(sign) : otherwise;
}

/// Whether a blank of a text counts as the separator: users type the ordinary blank for the other one.
bool isSeparator(char c, const NumberLocale& locale) {
    return locale.thousandsSeparator != '\0' &&
           (c == locale.thousandsSeparator || (locale.thousandsSeparator == kNoBreakBlank && c == ' '));
}

/// Takes the whole part at the front of `text` and appends its digits; false when its groups are wrong.
bool takeWholePart(std::string_view& text, const NumberLocale& locale, std::string& digits) {
    std::size_t group = 0;
    bool grouped = false;
    while (!text.empty()) {
        const char c = text.front();
        if (isDigit(c)) {
            digits += c;
            ++group;
        } else if (isSeparator(c, locale)) {
            if (group == 0 || (grouped ? group != 3 : group > 3)) {
                return false;
            }
            grouped = true;
            group = 0;
        } else {
            break;
        }
        text.remove_prefix(1);
    }
    return !grouped || group == 3;
}

/// Takes digits from the front of `text` and appends them; how many they were.
std::size_t takeDigits(std::string_view& text, std::string& digits) {
    std::size_t count = 0;
    while (count < text.size() && isDigit(text[count])) {
        ++count;
    }
    digits.append(text.substr(0, count));
    text.remove_prefix(count);
    return count;
}

/// Takes a sign and appends it when it is a minus.
void takeSign(std::string_view& text, std::string& number) {
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        number += text.front() == '-' ? "-" : "";
        text.remove_prefix(1);
    }
}

}  // namespace

NumberLocale numberLocaleOf(const SystemNumberSigns& signs) {
    const char decimal = signByte(signs.decimal, '.');
    const char thousands = signs.groups ? signByte(signs.thousands, '\0') : '\0';
    return {decimal, thousands == decimal ? '\0' : thousands};
}

std::optional<NumberLocale> namedNumberLocale(const std::string& name) {
    if (const auto known = systemNumberSigns(name)) {
        return numberLocaleOf(*known);
    }
    std::string wanted = name.substr(0, name.find_first_of(".@"));
    for (char& c : wanted) {
        c = c == '-' ? '_' : c;
    }
    const std::string_view language = std::string_view(wanted).substr(0, wanted.find('_'));
    for (const Language& entry : kLanguages) {
        if (entry.name == wanted || entry.name == language) {
            return entry.signs;
        }
    }
    return std::nullopt;
}

std::optional<double> localeNumber(std::string_view text, const NumberLocale& locale) {
    std::string number;
    takeSign(text, number);
    const std::size_t signLength = number.size();
    if (!takeWholePart(text, locale, number)) {
        return std::nullopt;
    }
    std::size_t digits = number.size() - signLength;
    if (!text.empty() && text.front() == locale.decimalSign) {
        text.remove_prefix(1);
        number += '.';
        digits += takeDigits(text, number);
    }
    if (digits == 0) {
        return std::nullopt;
    }
    if (!text.empty() && std::string_view("EeDd").find(text.front()) != std::string_view::npos) {
        text.remove_prefix(1);
        number += 'E';
        takeSign(text, number);
        if (takeDigits(text, number) == 0) {
            return std::nullopt;
        }
    }
    const double value = numericValue(number);
    if (!text.empty() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::string localeNumberText(double value, const NumberLocale& locale) {
    std::string text = plainCellText(value);
    const std::size_t point = text.find('.');
    if (point != std::string::npos) {
        text[point] = locale.decimalSign;
    }
    return text;
}

}  // namespace velmora
