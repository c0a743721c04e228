#include "serial/adapter_latency.h"

#ifndef _WIN32
#include <filesystem>
#endif

#include "serial/wire_time.h"

namespace velmora {
namespace {

/// A record of some sixty bytes, its acknowledgement, the answer and the acknowledgement of that.
constexpr int kBytesOfAnExchange = 90;
constexpr int kShareThatMatters = 10;  // one part in so many

}  // namespace

bool latencyMatters(std::chrono::milliseconds latency, const LineSettings& line) {
    return latency * kShareThatMatters > byteTime(line) * kBytesOfAnExchange;
}

std::string latencyAdvice(const std::string& device, std::chrono::milliseconds latency) {
    std::string text = device + " holds received bytes back for " + std::to_string(latency.count()) +
                       " ms, which slows transfers down; ";
#ifdef _WIN32
    text += "set its Latency Timer to 1 in the Device Manager: Port Settings, Advanced.";
#else
    // The system knows the device by its own name, not by that of a link to it.
    const std::string node = std::filesystem::weakly_canonical(device).filename().string();
    text += "an administrator can write 1 to /sys/bus/usb-serial/devices/" + node + "/latency_timer.";
#endif
    return text;
}

}  // namespace velmora
