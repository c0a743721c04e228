#include "organiser/replay.h"

#include <algorithm>
#include <array>

#include "base/byte_text.h"
#include "link/crc.h"
#include "link/frame_cutter.h"
#include "link/frames.h"

namespace velmora {
namespace {

bool isClock(std::string_view payload) {
    constexpr auto kClocks = std::to_array<std::string_view>({"TIME", "GMT", "TIMEINFO"});
    return std::find(kClocks.begin(), kClocks.end(), upperCase(payload)) != kClocks.end();
}

bool hasType(const std::optional<ParsedFrame>& frame, FrameType type) {
    return frame && frame->type == static_cast<std::uint8_t>(type);
}

class Player {
  public:
    Player(const Capture& capture, OrganiserLine& line, const OrganiserLink::FrameTrace& trace)
        : capture_(capture), line_(line), trace_(trace) {
        crc_.load_CRCtable();
    }

    ReplayResult play();

  private:
    void send(const std::string& bytes);
    void expect(const std::string& frame, std::chrono::nanoseconds time);
    std::optional<std::string> receive(bool withRepeats);
    bool agree(const std::string& then, const std::string& now) const;
    void dropLink();

    const Capture& capture_;
    OrganiserLine& line_;
    const OrganiserLink::FrameTrace& trace_;
    Crc crc_;
    FrameCutter sent_;       // what the Organiser sent
    FrameCutter recorded_;   // what the server sent
    FrameCutter received_;   // what it sends now
    bool linkIsUp_ = false;  // as far as the Organiser sent something since it last dropped it
    bool clockWasAsked_ = false;
    bool sentSince_ = false;  // since the server's last frame
    std::string lastThen_;    // the server's last frame, recorded and now
    std::string lastNow_;
    ReplayResult result_;
};

ReplayResult Player::play() {
    for (const CapturedPacket& packet : capture_.packets) {
        if (packet.direction == CaptureDirection::Received) {
            send(packet.bytes);
            continue;
        }
        if (packet.direction == CaptureDirection::Sent) {
            recorded_.append(packet.bytes);
        }
        while (const auto frame = recorded_.next()) {
            expect(std::string(*frame), packet.time - capture_.packets.front().time);
            if (result_.parting) {
                dropLink();
                return result_;
            }
        }
    }
    dropLink();
    return result_;
}

void Player::send(const std::string& bytes) {
    line_.write(bytes);
    sentSince_ = true;
    sent_.append(bytes);
    while (const auto frame = sent_.next()) {
        if (trace_) {
            trace_(FrameDirection::Sent, *frame);
        }
        const auto parsed = parseFrame(crc_, *frame);
        linkIsUp_ = !hasType(parsed, FrameType::Discon);
        if (hasType(parsed, FrameType::Data)) {
            clockWasAsked_ = isClock(parsed->data);
        }
    }
}

void Player::expect(const std::string& frame, std::chrono::nanoseconds time) {
    const bool isRepeat = frame == lastThen_;
    if (isRepeat && !sentSince_) {
        return;  // only its time had come
    }
    const std::optional<std::string> now = receive(isRepeat);
    if (!now || !agree(frame, *now)) {
        result_.parting = {result_.agreed + 1, time, frame, now};
        return;
    }
    result_.agreed += isRepeat ? 0 : 1;
    sentSince_ = false;
    lastThen_ = frame;
    lastNow_ = *now;
}

/// The server's next frame; with or without those that repeat its last.
std::optional<std::string> Player::receive(bool withRepeats) {
    const OrganiserLine::Time deadline = line_.now() + kReplayLimit;
    while (true) {
        while (const auto frame = received_.next()) {
            if (trace_) {
                trace_(FrameDirection::Received, *frame);
            }
            if (withRepeats || *frame != lastNow_) {
                return std::string(*frame);
            }
        }
        if (line_.now() >= deadline) {
            return std::nullopt;
        }
        received_.append(line_.read(deadline));
    }
}

bool Player::agree(const std::string& then, const std::string& now) const {
    if (then == now) {
        return true;
    }
    const auto parsedThen = parseFrame(crc_, then);
    const auto parsedNow = parseFrame(crc_, now);
    return clockWasAsked_ && hasType(parsedThen, FrameType::Data) && hasType(parsedNow, FrameType::Data) &&
           parsedThen->sequence == parsedNow->sequence && parsedThen->data.size() == parsedNow->data.size();
}

void Player::dropLink() {
    if (linkIsUp_) {
        line_.write(buildFrame(crc_, FrameType::Discon, 0, std::string_view(&kReasonNone, 1)));
    }
}

}  // namespace

ReplayResult replay(const Capture& capture, OrganiserLine& line, const OrganiserLink::FrameTrace& trace) {
    return Player(capture, line, trace).play();
}

}  // namespace velmora
