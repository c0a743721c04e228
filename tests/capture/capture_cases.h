// Frames and recordings that tests are made of.
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "capture/capture.h"
#include "link/crc.h"
#include "link/frames.h"

namespace velmora::test {

inline std::string frame(FrameType type, std::uint8_t sequence, std::string_view data = {}) {
    Crc crc;
    crc.load_CRCtable();
    return buildFrame(crc, type, sequence, data);
}
inline std::string dataFrame(std::uint8_t sequence, std::string_view data) {
    return frame(FrameType::Data, sequence, data);
}
inline std::string ack(std::uint8_t sequence) {
    return frame(FrameType::Ack, sequence);
}

inline CapturedPort usualPort() {
    return {"/dev/ttyUSB0", "9600,N,8,1", 9600};
}

/// A recording that is written down packet by packet, each so many milliseconds after the first.
class CaptureScript {
  public:
    CaptureScript() { capture.ports = {usualPort()}; }

    CaptureScript& received(int at, std::string bytes) {
        return add(at, CaptureDirection::Received, std::move(bytes));
    }
    CaptureScript& sent(int at, std::string bytes) {
        return add(at, CaptureDirection::Sent, std::move(bytes));
    }
    CaptureScript& note(int at, std::string text) {
        add(at, CaptureDirection::None, {});
        capture.packets.back().comments = {std::move(text)};
        return *this;
    }

    Capture capture;

  private:
    CaptureScript& add(int at, CaptureDirection direction, std::string bytes) {
        const auto time = std::chrono::hours(500'000) + std::chrono::milliseconds(at);
        capture.packets.push_back({capture.ports.size() - 1, time, direction, std::move(bytes), {}});
        return *this;
    }
};

/// Keeps what it is given.
class RecordingTarget : public CaptureTarget {
  public:
    void addPort(const CapturedPort& port) override { capture.ports.push_back(port); }
    void addPacket(const CapturedPacket& packet) override {
        capture.packets.push_back(packet);
        capture.packets.back().port = capture.ports.size() - 1;
    }
    /// "recv ab", "send cd" or "note text" for each packet.
    std::vector<std::string> lines() const {
        std::vector<std::string> lines;
        for (const CapturedPacket& packet : capture.packets) {
            const bool isNote = packet.direction == CaptureDirection::None;
            const bool isSent = packet.direction == CaptureDirection::Sent;
            lines.push_back(isNote ? "note " + packet.comments.at(0)
                                   : (isSent ? "send " : "recv ") + packet.bytes);
        }
        return lines;
    }

    Capture capture;
};

}  // namespace velmora::test
