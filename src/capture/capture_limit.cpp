#include "capture/capture_limit.h"

#include <array>
#include <charconv>

namespace velmora {
namespace {

using std::chrono::seconds;

/// Bytes or seconds.
struct Unit {
    std::string_view name;
    std::uint64_t bytes;
    seconds time;
};

constexpr std::uint64_t kKilobyte = 1024;
constexpr auto kUnits = std::to_array<Unit>({{"K", kKilobyte, {}},
                                             {"M", kKilobyte* kKilobyte, {}},
                                             {"G", kKilobyte* kKilobyte* kKilobyte, {}},
                                             {"s", 0, seconds(1)},
                                             {"min", 0, std::chrono::minutes(1)},
                                             {"h", 0, std::chrono::hours(1)}});
constexpr std::uint64_t kMost = 1'000'000;

}  // namespace

std::optional<CaptureLimit> parseCaptureLimit(std::string_view text) {
    std::uint64_t count = 0;
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, count);
    if (error != std::errc() || count == 0 || count > kMost) {
        return std::nullopt;
    }
    const std::string_view name(behind, static_cast<std::size_t>(end - behind));
    for (const Unit& unit : kUnits) {
        if (name != unit.name) {
            continue;
        }
        CaptureLimit limit;
        if (unit.bytes > 0) {
            limit.bytes = count * unit.bytes;
        } else {
            limit.time = unit.time * static_cast<std::int64_t>(count);
        }
        return limit;
    }
    return std::nullopt;
}

}  // namespace velmora
