// How the user writes numbers in text files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "spreadsheet/system_number_signs.h"

namespace velmora {

/// The signs of a locale as Windows-1252 bytes.
struct NumberLocale {
    char decimalSign = '.';
    char thousandsSeparator = ',';  ///< zero byte when there is none

    friend bool operator==(const NumberLocale&, const NumberLocale&) = default;
};

/// What the system says of a locale. A character without a byte is as good as none: "." for the decimal sign,
/// no separator. Every blank that does not break is the one that Windows-1252 has, and a typographic
/// apostrophe the plain one. Two signs that are the same are the decimal sign.
NumberLocale numberLocaleOf(const SystemNumberSigns& signs);

/// The signs of a named locale ("de_DE.UTF-8", "fr", "C"); "" is the user's own. Asks the system first and
/// falls back on a table of languages, since many systems have few locales installed. Nothing for a name
/// that neither knows.
std::optional<NumberLocale> namedNumberLocale(const std::string& name);

/// The value of a text that is a number as a whole: sign, digits (in groups of three where they are
/// separated), decimal sign and digits, exponent ("E" or "D", either case). Nothing for any other text, and
/// for a number that no double holds. "nan", "inf", "0x10" and "&H10" are no numbers.
std::optional<double> localeNumber(std::string_view text, const NumberLocale& locale);

/// The plain text of a number with the decimal sign of the locale; localeNumber reads it back.
std::string localeNumberText(double value, const NumberLocale& locale);

}  // namespace velmora
