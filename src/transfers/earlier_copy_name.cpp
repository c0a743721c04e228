#include "transfers/earlier_copy_name.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace velmora {
namespace {

/// A moment with its brackets, a digit for each "#".
constexpr std::string_view kForm = " (####-##-## ##.##.##)";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool hasForm(std::string_view text) {
    for (std::size_t i = 0; i < kForm.size(); ++i) {
        if (kForm[i] == '#' ? !isDigit(text[i]) : text[i] != kForm[i]) {
            return false;
        }
    }
    return true;
}

int numberAt(std::string_view text, std::size_t offset, std::size_t digits) {
    int number = 0;
    std::from_chars(text.data() + offset, text.data() + offset + digits, number);
    return number;
}

DateTime momentIn(std::string_view text) {
    return {numberAt(text, 2, 4),  numberAt(text, 7, 2),  numberAt(text, 10, 2),
            numberAt(text, 13, 2), numberAt(text, 16, 2), numberAt(text, 19, 2)};
}

std::chrono::year_month_day dateOf(const DateTime& moment) {
    return std::chrono::year(moment.year) / moment.month / moment.day;
}

bool isOnTheCalendar(const DateTime& moment) {
    return dateOf(moment).ok() && moment.hour < 24 && moment.minute < 60 && moment.second < 60;
}

std::chrono::sys_seconds pointOf(const DateTime& moment) {
    return std::chrono::sys_days(dateOf(moment)) + std::chrono::hours(moment.hour) +
           std::chrono::minutes(moment.minute) + std::chrono::seconds(moment.second);
}

/// Whether a text is nothing, a number (" (2)"), an extension (".odb") or both.
bool endsAName(std::string_view text) {
    if (text.substr(0, 2) == " (") {
        const std::size_t end = text.find_first_not_of("0123456789", 2);
        if (end == 2 || end == std::string_view::npos || text[end] != ')') {
            return false;
        }
        text.remove_prefix(end + 1);
    }
    return text.empty() || (text.front() == '.' && text.find('.', 1) == std::string_view::npos);
}

}  // namespace

std::string earlierCopyName(std::string_view baseName, std::string_view extension, const DateTime& moment,
                            int number) {
    std::array<char, 64> stamp{};
    std::snprintf(stamp.data(), stamp.size(), " (%04d-%02d-%02d %02d.%02d.%02d)", moment.year, moment.month,
                  moment.day, moment.hour, moment.minute, moment.second);
    std::string name = std::string(baseName) + stamp.data();
    if (number > 1) {
        name += " (" + std::to_string(number) + ")";
    }
    return extension.empty() ? name : name + "." + std::string(extension);
}

std::optional<DateTime> momentOfEarlierCopy(std::string_view name) {
    for (std::size_t i = name.rfind(kForm.substr(0, 2)); i != std::string_view::npos && i > 0;
         i = name.rfind(kForm.substr(0, 2), i - 1)) {
        const std::string_view text = name.substr(i);
        if (text.size() < kForm.size() || !hasForm(text)) {
            continue;
        }
        const DateTime moment = momentIn(text);
        const bool complete = endsAName(text.substr(kForm.size())) && isOnTheCalendar(moment);
        return complete ? std::optional(moment) : std::nullopt;
    }
    return std::nullopt;
}

std::chrono::seconds timeBetween(const DateTime& from, const DateTime& to) {
    return pointOf(to) - pointOf(from);
}

}  // namespace velmora
