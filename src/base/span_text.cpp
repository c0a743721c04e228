#include "base/span_text.h"

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

}  // namespace velmora
