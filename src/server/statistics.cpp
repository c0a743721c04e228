#include "server/statistics.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "link/server_window.h"
#include "server/main_view.h"

namespace velmora {

namespace {

constexpr std::int64_t kMega = 1'000'000;
constexpr std::int64_t kKilo = 1000;

// A label's number times `unit`, rounded. The commas are the grouping that this file itself writes. A text
// that somebody else put there counts for at most 10^15, so that nothing overflows.
std::int64_t countIn(std::string_view label, std::int64_t unit) {
    std::string digits(label);
    digits.erase(std::remove(digits.begin(), digits.end(), ','), digits.end());
    constexpr double kLargest = 1e15;
    const double count = numericValue(digits) * static_cast<double>(unit);
    return std::llround(std::clamp(count, -kLargest, kLargest));
}

std::int64_t bytesIn(std::string_view label) {
    if (label.ends_with("Mb")) {
        return countIn(label.substr(0, label.size() - 2), kMega);
    }
    if (label.ends_with("kb")) {
        return countIn(label.substr(0, label.size() - 2), kKilo);
    }
    return countIn(label, 1);
}

// Pattern "#0.00" of a million's part, halves rounded up; whole numbers, so that 1,005,000 is 1.01.
std::string megaText(std::int64_t bytes) {
    const std::int64_t hundredths = (bytes + kMega / 200) / (kMega / 100);
    const std::string decimals = std::to_string(hundredths % 100);
    return std::to_string(hundredths / 100) + (decimals.size() < 2 ? ".0" : ".") + decimals + "Mb";
}

void change(MainView& view, StatsLabel label, std::string (*add)(std::string_view, std::int16_t),
            std::int16_t amount) {
    view.setStatsText(label, add(view.statsText(label), amount));
}

}  // namespace

std::string addToFileCount(std::string_view label, std::int16_t amount) {
    return groupedText(countIn(label, 1) + amount);
}

std::string addToByteCount(std::string_view label, std::int16_t amount) {
    const std::int64_t bytes = bytesIn(label) + amount;
    return bytes < kMega ? groupedText(bytes) : megaText(bytes);
}

void SetStats(MainView& view, std::int32_t which, std::int16_t amount) {
    switch (which) {
        case StatsReset:
            for (const StatsLabel label : {StatsLabel::BytesRecv, StatsLabel::BytesSent,
                                           StatsLabel::FilesRecv, StatsLabel::FilesSent}) {
                view.setStatsText(label, "0");
            }
            break;
        case StatsBytesReceived:
            change(view, StatsLabel::BytesRecv, addToByteCount, amount);
            break;
        case StatsBytesSent:
            change(view, StatsLabel::BytesSent, addToByteCount, amount);
            break;
        case StatsFilesReceived:
            change(view, StatsLabel::FilesRecv, addToFileCount, amount);
            break;
        case StatsFilesSent:
            change(view, StatsLabel::FilesSent, addToFileCount, amount);
            break;
        default:  // any number may come in; only these five mean something
            break;
    }
}

}  // namespace velmora
