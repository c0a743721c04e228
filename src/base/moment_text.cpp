#include "base/moment_text.h"

#include <algorithm>
#include <chrono>
#include <cstddef>

namespace velmora {
namespace {

/// The number that a letter of a form stands for; null for any other letter.
int* fieldOf(DateTime& moment, char letter) {
    switch (letter) {
        case 'y':
            return &moment.year;
        case 'M':
            return &moment.month;
        case 'd':
            return &moment.day;
        case 'h':
            return &moment.hour;
        case 'm':
            return &moment.minute;
        case 's':
            return &moment.second;
        default:
            return nullptr;
    }
}

std::size_t runLength(std::string_view form) {
    return std::min(form.find_first_not_of(form.front()), form.size());
}

/// The number that a text of digits is; nothing for another text.
std::optional<int> digitsIn(std::string_view text) {
    int number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            return std::nullopt;
        }
        number = number * 10 + (c - '0');
    }
    return number;
}

bool isOnTheCalendar(const DateTime& moment) {
    return (std::chrono::year(moment.year) / moment.month / moment.day).ok() && moment.hour < 24 &&
           moment.minute < 60 && moment.second < 60;
}

}  // namespace

std::string momentText(const DateTime& moment, std::string_view form) {
    DateTime numbers = moment;
    std::string text;
    while (!form.empty()) {
        const std::size_t length = runLength(form);
        if (const int* field = fieldOf(numbers, form.front())) {
            const std::string digits = std::to_string(*field);
            text += std::string(length - std::min(length, digits.size()), '0') + digits;
        } else {
            text += form.substr(0, length);
        }
        form.remove_prefix(length);
    }
    return text;
}

std::optional<DateTime> momentIn(std::string_view text, std::string_view form) {
    if (text.size() != form.size()) {
        return std::nullopt;
    }
    DateTime moment;
    while (!form.empty()) {
        const std::size_t length = runLength(form);
        const std::string_view part = text.substr(0, length);
        if (int* field = fieldOf(moment, form.front())) {
            const std::optional<int> number = digitsIn(part);
            if (!number) {
                return std::nullopt;
            }
            *field = *number;
        } else if (part != form.substr(0, length)) {
            return std::nullopt;
        }
        form.remove_prefix(length);
        text.remove_prefix(length);
    }
    return isOnTheCalendar(moment) ? std::optional(moment) : std::nullopt;
}

}  // namespace velmora
