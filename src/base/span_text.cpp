#include "base/span_text.h"

#include <array>
#include <cstdio>

namespace velmora {
namespace {

std::string twoDigits(std::int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

std::string spanText(std::int64_t seconds) {
    const std::int64_t minutes = seconds / 60;
    const std::string end = ":" + twoDigits(seconds % 60);
    return minutes < 60 ? std::to_string(minutes) + end
                        : std::to_string(minutes / 60) + ":" + twoDigits(minutes % 60) + end;
}

std::string exactSecondsText(std::chrono::nanoseconds span) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.3f", std::chrono::duration<double>(span).count());
    return text.data();
}

}  // namespace velmora
