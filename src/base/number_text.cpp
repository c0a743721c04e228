#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "base/ascii.h"
#include "base/run_time_error.h"

namespace velmora {
namespace {

/// Rounds halves to the even neighbour whatever rounding mode the process is in.
double roundHalfEven(double value) {
    const double floor = std::floor(value);
    const double rest = value - floor;
    if (rest < 0.5) {
        return floor;
    }
    if (rest > 0.5) {
        return floor + 1;
    }
    return std::fmod(floor, 2) == 0 ? floor : floor + 1;
}

/// Whether a number that no double holds (digits, ".", "e" and exponent) is too small rather than too large.
bool isTiny(std::string_view number) {
    constexpr long kFar = 1'000'000'000;
    const std::size_t mark = number.find('e');
    long exponent = 0;
    if (mark != std::string_view::npos) {
        const std::string_view text = number.substr(mark + 1);
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), exponent);
        if (error == std::errc::result_out_of_range || std::labs(exponent) > kFar) {
            return text.front() == '-';
        }
    }
    const std::string_view digits = number.substr(0, mark);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t first = std::min(digits.find_first_of("123456789"), digits.size());
    // The power of ten of the first digit that counts.
    return static_cast<long>(point) - static_cast<long>(first) + exponent < 0;
}

template <typename Integer>
Integer toInteger(double value) {
    const double rounded = roundHalfEven(value);
    // Written so that a NaN fails too.
    if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return static_cast<Integer>(rounded);
}

/// Reads the longest prefix of a text that is a number; blanks count for nothing, wherever they stand.
class NumericPrefix {
  public:
    explicit NumericPrefix(std::string_view text) : text_(text) {}

    /// The number with "e" before its exponent and no "+"; empty when the text does not begin with one.
    std::string read() {
        std::string number = readSign();
        const std::size_t sign = number.size();
        number += readDigits();
        bool digits = number.size() > sign;
        if (peek() == '.') {
            number += take();
            const std::string decimals = readDigits();
            digits = digits || !decimals.empty();
            number += decimals;
        }
        return digits ? number + readExponent() : "";
    }

  private:
    /// The next character that is no blank, or a zero byte at the end.
    char peek() {
        at_ = std::min(text_.find_first_not_of(" \t\n\r", at_), text_.size());
        return at_ < text_.size() ? text_[at_] : '\0';
    }
    char take() { return text_[at_++]; }

    std::string readSign() {
        const char sign = peek();
        if (sign != '+' && sign != '-') {
            return "";
        }
        take();
        return sign == '-' ? "-" : "";
    }
    std::string readDigits() {
        std::string digits;
        while (isDigit(peek())) {
            digits += take();
        }
        return digits;
    }
    std::string readExponent() {
        constexpr std::string_view kMarks = "EeDd";
        const char mark = peek();
        if (mark == '\0' || kMarks.find(mark) == std::string_view::npos) {
            return "";
        }
        take();
        const std::string sign = readSign();
        const std::string digits = readDigits();
        return digits.empty() ? "" : "e" + sign + digits;
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

}  // namespace

double numericValue(std::string_view text) {
    const std::string number = NumericPrefix(text).read();
    if (number.empty()) {
        return 0;
    }
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        const double magnitude = isTiny(number) ? 0 : std::numeric_limits<double>::infinity();
        return number.front() == '-' ? -magnitude : magnitude;
    }
    return value;
}

std::string plainText(double value) {
    if (value == 0) {
        return "0";
    }
    // 15 significant digits, then the shortest form of that decimal.
    std::array<char, 64> buffer{};
    auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific, 14);
    std::string text(buffer.data(), result.ptr);
    const std::size_t mark = text.find('e');
    if (mark == std::string::npos) {
        return text;  // infinity or NaN, as the library names them
    }
    const int exponent = std::stoi(text.substr(mark + 1));
    const bool negative = text.front() == '-';
    std::string digits;
    for (const char c : text.substr(0, mark)) {
        if (isDigit(c)) {
            digits += c;
        }
    }
    digits.erase(digits.find_last_not_of('0') + 1);
    const int count = static_cast<int>(digits.size());
    std::string out = negative ? "-" : "";
    if (exponent >= 15 || exponent < -4) {
        out += digits[0];
        if (count > 1) {
            out.append(1, '.').append(digits, 1, std::string::npos);
        }
        const int magnitude = std::abs(exponent);
        out += exponent < 0 ? "E-" : "E+";
        out.append(magnitude < 10 ? "0" : "").append(std::to_string(magnitude));
    } else if (exponent < 0) {
        out.append("0.").append(static_cast<std::size_t>(-exponent - 1), '0').append(digits);
    } else if (count <= exponent + 1) {
        out.append(digits).append(static_cast<std::size_t>(exponent + 1 - count), '0');
    } else {
        const auto whole = static_cast<std::size_t>(exponent + 1);
        out.append(digits, 0, whole).append(1, '.').append(digits, whole, std::string::npos);
    }
    return out;
}

std::int16_t toInt16(double value) {
    return toInteger<std::int16_t>(value);
}
std::int32_t toInt32(double value) {
    return toInteger<std::int32_t>(value);
}

std::string groupedText(std::int64_t value) {
    std::string digits = std::to_string(value);
    const std::size_t first = digits.front() == '-' ? 1 : 0;
    for (std::size_t i = digits.size(); i > first + 3; i -= 3) {
        digits.insert(i - 3, 1, ',');
    }
    return digits;
}

}  // namespace velmora
