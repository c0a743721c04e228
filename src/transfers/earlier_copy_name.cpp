#include "transfers/earlier_copy_name.h"

#include "base/moment_text.h"

namespace velmora {
namespace {

constexpr std::string_view kForm = " (yyyy-MM-dd hh.mm.ss)";

std::chrono::sys_seconds pointOf(const DateTime& moment) {
    return std::chrono::sys_days(std::chrono::year(moment.year) / moment.month / moment.day) +
           std::chrono::hours(moment.hour) + std::chrono::minutes(moment.minute) +
           std::chrono::seconds(moment.second);
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
    std::string name = std::string(baseName) + momentText(moment, kForm);
    if (number > 1) {
        name += " (" + std::to_string(number) + ")";
    }
    return extension.empty() ? name : name + "." + std::string(extension);
}

std::optional<DateTime> momentOfEarlierCopy(std::string_view name) {
    for (std::size_t i = name.rfind(kForm.substr(0, 2)); i != std::string_view::npos && i > 0;
         i = name.rfind(kForm.substr(0, 2), i - 1)) {
        const std::string_view text = name.substr(i);
        const std::optional<DateTime> moment = momentIn(text.substr(0, kForm.size()), kForm);
        if (moment) {
            return endsAName(text.substr(kForm.size())) ? moment : std::nullopt;
        }
    }
    return std::nullopt;
}

std::chrono::seconds timeBetween(const DateTime& from, const DateTime& to) {
    return pointOf(to) - pointOf(from);
}

}  // namespace velmora
