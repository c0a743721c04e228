#include "capture/capture_events.h"

#include <map>
#include <utility>

#include "link/crc.h"
#include "link/frame_cutter.h"

namespace velmora {
namespace {

bool isData(const ParsedFrame& frame) {
    return frame.type == static_cast<std::uint8_t>(FrameType::Data);
}

class EventReader {
  public:
    explicit EventReader(const Capture& capture) : capture_(capture) { crc_.load_CRCtable(); }

    std::vector<CaptureEvent> read() {
        for (const CapturedPacket& packet : capture_.packets) {
            take(packet);
        }
        endPort();
        return std::move(events_);
    }

  private:
    /// The bytes of one direction.
    struct Way {
        FrameCutter cutter;
        std::size_t toldStray = 0;
        std::string lastData;
    };

    void take(const CapturedPacket& packet);
    void takeBytes(const CapturedPacket& packet);
    void takeFrame(const CapturedPacket& packet, Way& way, std::string_view frame);
    void tellStray(CaptureDirection direction, Way& way, std::size_t count);
    CaptureEvent& add(CaptureEvent::Kind kind);
    void endPort();

    const Capture& capture_;
    Crc crc_;
    std::map<CaptureDirection, Way> ways_;
    std::optional<std::size_t> port_;
    std::chrono::nanoseconds time_{0};
    std::vector<CaptureEvent> events_;
};

CaptureEvent& EventReader::add(CaptureEvent::Kind kind) {
    CaptureEvent& event = events_.emplace_back();
    event.kind = kind;
    event.port = *port_;
    event.time = time_;
    return event;
}

void EventReader::take(const CapturedPacket& packet) {
    if (packet.port != port_) {
        endPort();
        port_ = packet.port;
        time_ = packet.time;
        add(CaptureEvent::Kind::Port);
    }
    time_ = packet.time;
    takeBytes(packet);
    for (const std::string& comment : packet.comments) {
        add(CaptureEvent::Kind::Comment).bytes = comment;
    }
}

void EventReader::takeBytes(const CapturedPacket& packet) {
    if (packet.direction == CaptureDirection::None) {
        return;
    }
    Way& way = ways_[packet.direction];
    way.cutter.append(packet.bytes);
    while (const auto frame = way.cutter.next()) {
        tellStray(packet.direction, way, way.cutter.droppedBytes());
        takeFrame(packet, way, *frame);
    }
    tellStray(packet.direction, way, way.cutter.droppedBytes());
}

void EventReader::takeFrame(const CapturedPacket& packet, Way& way, std::string_view frame) {
    CaptureEvent& event = add(CaptureEvent::Kind::Frame);
    event.direction = packet.direction;
    event.bytes = frame;
    event.parsed = parseFrame(crc_, frame);
    if (!event.parsed) {
        return;
    }
    if (isData(*event.parsed)) {
        event.repeated = way.lastData == event.bytes;
        way.lastData = event.bytes;
    } else if (event.parsed->type != static_cast<std::uint8_t>(FrameType::Ack)) {
        // A link that begins or ends: its numbers begin anew.
        ways_[CaptureDirection::Received].lastData.clear();
        ways_[CaptureDirection::Sent].lastData.clear();
    }
}

/// `count`: the bytes of this way that have turned out to be stray, those told before among them.
void EventReader::tellStray(CaptureDirection direction, Way& way, std::size_t count) {
    if (count > way.toldStray) {
        CaptureEvent& event = add(CaptureEvent::Kind::Stray);
        event.direction = direction;
        event.stray = count - way.toldStray;
        way.toldStray = count;
    }
}

void EventReader::endPort() {
    for (auto& [direction, way] : ways_) {
        tellStray(direction, way, way.cutter.droppedBytes() + way.cutter.heldBytes());
    }
    ways_.clear();
}

}  // namespace

std::vector<CaptureEvent> eventsOf(const Capture& capture) {
    return EventReader(capture).read();
}

}  // namespace velmora
