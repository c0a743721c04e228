// Any bytes are a recording, as far as they can be read, or none; what is read can be looked at, masked, and
// written so that it reads the same.
#include <cstdint>
#include <string>

#include "capture/capture_events.h"
#include "capture/capture_statistics.h"
#include "capture/frame_mask.h"
#include "capture/pcapng_reader.h"
#include "capture/pcapng_writer.h"
#include "require.h"

namespace {

using namespace velmora;
using fuzz::require;

void checkCapture(const Capture& capture) {
    const auto events = eventsOf(capture);
    const CaptureStatistics statistics = statisticsOf(capture, events);
    std::size_t bytes = statistics.received.stray + statistics.sent.stray;
    for (const CaptureEvent& event : events) {
        bytes += event.kind == CaptureEvent::Kind::Frame ? event.bytes.size() : 0;
    }
    require(bytes == statistics.received.bytes + statistics.sent.bytes);

    const ReadCapture again = readPcapng(pcapngFile(capture));
    require(!again.damage && again.capture.masked == capture.masked);
    require(again.capture.ports == capture.ports && again.capture.packets == capture.packets);

    // A mask changes no frame's place, length or health.
    const auto masked = eventsOf(maskedCapture(capture));
    require(masked.size() == events.size());
    for (std::size_t i = 0; i < events.size(); ++i) {
        require(masked[i].bytes.size() == events[i].bytes.size() && masked[i].stray == events[i].stray);
        require(masked[i].parsed.has_value() == events[i].parsed.has_value());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        checkCapture(readPcapng({reinterpret_cast<const char*>(data), size}).capture);
    } catch (const CaptureError&) {
        // No recording at all.
    }
    return 0;
}
