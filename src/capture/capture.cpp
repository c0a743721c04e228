#include "capture/capture.h"

#include <algorithm>
#include <iterator>

namespace velmora {

Capture lastOf(const Capture& capture, std::chrono::nanoseconds span) {
    Capture last;
    last.masked = capture.masked;
    last.ports = capture.ports;
    if (!capture.packets.empty()) {
        const auto begin = capture.packets.back().time - span;
        std::copy_if(capture.packets.begin(), capture.packets.end(), std::back_inserter(last.packets),
                     [begin](const CapturedPacket& packet) { return packet.time >= begin; });
    }
    return last;
}

}  // namespace velmora
