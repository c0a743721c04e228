#include "capture/capture_statistics.h"

#include <algorithm>
#include <optional>

#include "serial/wire_time.h"

namespace velmora {
namespace {

/// The DATA frames of one way that may still be acknowledged: there is one at most.
struct Outstanding {
    std::uint8_t sequence = 0;
    std::chrono::nanoseconds time{0};
};

class Counter {
  public:
    CaptureStatistics count(const Capture& capture, const std::vector<CaptureEvent>& events);

  private:
    WayStatistics& way(CaptureDirection direction) {
        return direction == CaptureDirection::Sent ? result_.sent : result_.received;
    }
    void takePacket(const CapturedPacket& packet, const CapturedPort& port);
    void takeFrame(const CaptureEvent& event);
    void takeData(const CaptureEvent& event);
    void takeAck(const CaptureEvent& event);

    CaptureStatistics result_;
    std::optional<Outstanding> receivedData_;
    std::optional<Outstanding> sentData_;
};

CaptureStatistics Counter::count(const Capture& capture, const std::vector<CaptureEvent>& events) {
    for (const CapturedPacket& packet : capture.packets) {
        takePacket(packet, capture.ports[packet.port]);
    }
    if (!capture.packets.empty()) {
        result_.length = std::max(capture.packets.back().time - capture.packets.front().time,
                                  std::chrono::nanoseconds::zero());
    }
    for (const CaptureEvent& event : events) {
        if (event.kind == CaptureEvent::Kind::Frame) {
            takeFrame(event);
        } else if (event.kind == CaptureEvent::Kind::Stray) {
            way(event.direction).stray += event.stray;
        }
    }
    return result_;
}

void Counter::takePacket(const CapturedPacket& packet, const CapturedPort& port) {
    if (packet.direction == CaptureDirection::None) {
        return;
    }
    WayStatistics& taken = way(packet.direction);
    taken.bytes += packet.bytes.size();
    if (const auto settings = parseModeString(port.settings)) {
        taken.busy += byteTime(*settings) * static_cast<std::int64_t>(packet.bytes.size());
    }
}

void Counter::takeFrame(const CaptureEvent& event) {
    WayStatistics& taken = way(event.direction);
    ++taken.frames;
    if (!event.parsed) {
        ++taken.badChecks;
        return;
    }
    switch (static_cast<FrameType>(event.parsed->type)) {
        case FrameType::Data:
            takeData(event);
            break;
        case FrameType::Ack:
            takeAck(event);
            break;
        case FrameType::Connect:
        case FrameType::Discon:
            receivedData_.reset();
            sentData_.reset();
            break;
    }
}

void Counter::takeData(const CaptureEvent& event) {
    auto& outstanding = event.direction == CaptureDirection::Sent ? sentData_ : receivedData_;
    if (event.repeated) {
        ++way(event.direction).repeats;
        outstanding.reset();
    } else {
        outstanding = Outstanding{event.parsed->sequence, event.time};
    }
}

/// An acknowledgement answers the other way's DATA frame.
void Counter::takeAck(const CaptureEvent& event) {
    const bool ofSent = event.direction == CaptureDirection::Received;
    auto& outstanding = ofSent ? sentData_ : receivedData_;
    if (outstanding && outstanding->sequence == event.parsed->sequence) {
        (ofSent ? result_.sent : result_.received).roundTrips.add(event.time - outstanding->time);
        outstanding.reset();
    }
}

}  // namespace

void RoundTrips::add(std::chrono::nanoseconds time) {
    time = std::max(time, std::chrono::nanoseconds::zero());
    shortest = count == 0 ? time : std::min(shortest, time);
    longest = std::max(longest, time);
    total += time;
    ++count;
}

std::chrono::nanoseconds RoundTrips::mean() const {
    return count == 0 ? std::chrono::nanoseconds::zero()
                      : std::chrono::duration_cast<std::chrono::nanoseconds>(total / count);
}

CaptureStatistics statisticsOf(const Capture& capture, const std::vector<CaptureEvent>& events) {
    return Counter().count(capture, events);
}

int percentOf(std::chrono::nanoseconds part, std::chrono::nanoseconds whole) {
    if (whole <= std::chrono::nanoseconds::zero()) {
        return 0;
    }
    const double share = static_cast<double>(part.count()) / static_cast<double>(whole.count());
    return static_cast<int>(std::min(100.0 * share, 100.0));
}

}  // namespace velmora
