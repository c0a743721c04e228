#include "doctor/echo_test.h"

#include <chrono>
#include <string>

#include "doctor/likely_settings.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

constexpr LineProbe::Time kWayBack = 200ms;
/// Below it, all byte values take seconds.
constexpr std::uint32_t kSlowestLoopback = 1200;
constexpr int kByteValues = 256;

std::string everyByte() {
    std::string bytes;
    for (int value = 0; value < kByteValues; ++value) {
        bytes += static_cast<char>(value);
    }
    return bytes;
}

}  // namespace

bool echoes(LineProbe& probe) {
    // No byte of a frame's header among them; an Organiser would not send this.
    const std::string token = "~velmora?~";
    return probe.reply(token, kWayBack).bytes.find(token) != std::string::npos;
}

LoopbackResult tryLoopback(LineProbe& probe) {
    LoopbackResult result;
    const std::string bytes = everyByte();
    for (const std::uint32_t rate : kTriedRates) {
        if (rate >= kSlowestLoopback && probe.use(LineSettings{rate})) {
            const bool whole = probe.reply(bytes, kWayBack).bytes == bytes;
            (whole ? result.whole : result.other).push_back(rate);
        }
    }
    return result;
}

}  // namespace velmora
