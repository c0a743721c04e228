#include "doctor/line_probe.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "serial/wire_time.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

/// How long the server waits for an answer before it asks again.
constexpr LineProbe::Time kAnswerTime = 500ms;
/// What may still come with an answer is waited for before the next request.
constexpr LineProbe::Time kAfterAnswer = 150ms;
/// After so long without an acknowledgement none is on its way.
constexpr LineProbe::Time kQuiet = 1500ms;
/// An acknowledgement that never stops coming is no reason to wait for ever.
constexpr int kMostStragglers = 4;

bool is(const ParsedFrame& frame, FrameType type) {
    return frame.type == static_cast<std::uint8_t>(type);
}

}  // namespace

LineProbe::LineProbe(ExaminedLine& line) : line_(line) {
    crc_.load_CRCtable();
}

bool LineProbe::use(const LineSettings& settings) {
    settings_ = settings;
    return line_.use(settings);
}

void LineProbe::sendControl(FrameType type, std::string_view data) {
    line_.write(buildFrame(crc_, type, 0, data));
}

LineProbe::Time LineProbe::onTheWire(std::size_t bytes) const {
    return std::chrono::duration_cast<Time>(byteTime(settings_) * static_cast<std::int64_t>(bytes));
}

/// Whether the other side shows by the frame that it has heard a link request; its own ones, which it sends
/// anyway, are acknowledged as the server does.
bool LineProbe::answers(const ParsedFrame& frame) {
    if (is(frame, FrameType::Connect)) {
        sendControl(FrameType::Ack);
        return false;
    }
    return is(frame, FrameType::Ack) || is(frame, FrameType::Data);
}

/// One link request, and what comes until the time for its answer is over, or a little behind the answer.
void LineProbe::request(Listener& listener) {
    const std::string frame = buildFrame(crc_, FrameType::Connect, 0, {});
    Heard& heard = listener.heard();
    line_.write(frame);
    ++heard.requests;
    Time deadline = line_.now() + 2 * onTheWire(frame.size()) + kAnswerTime;
    bool answered = false;
    while (line_.now() < deadline) {
        const LineInput input = line_.read(deadline);
        for (const ParsedFrame& received : listener.take(input.bytes, input.errorFlags)) {
            if (answers(received) && !std::exchange(answered, true)) {
                deadline = std::min(deadline, line_.now() + onTheWire(frame.size()) + kAfterAnswer);
            }
        }
    }
    if (answered) {
        ++heard.answered;
    } else if (heard.answered > 0) {
        ++heard.missed;
    }
}

Heard LineProbe::converse(const ConversationLimits& limits) {
    Listener listener(crc_, settings_);
    Heard& heard = listener.heard();
    while (heard.requests < limits.requests && heard.answered < limits.answers &&
           (heard.goodFrames > 0 || heard.requests < kRequestsInVain)) {
        request(listener);
    }
    return std::move(heard);
}

bool LineProbe::acknowledgedWithin(Listener& listener, Time time) {
    const Time deadline = line_.now() + time;
    while (line_.now() < deadline) {
        const LineInput input = line_.read(deadline);
        const std::vector<ParsedFrame> frames = listener.take(input.bytes, input.errorFlags);
        if (std::any_of(frames.begin(), frames.end(),
                        [](const ParsedFrame& frame) { return is(frame, FrameType::Ack); })) {
            return true;
        }
    }
    return false;
}

std::optional<LineProbe::Time> LineProbe::measureAnswer() {
    Listener listener(crc_, settings_);
    for (int stragglers = 0; acknowledgedWithin(listener, kQuiet); ++stragglers) {
        if (stragglers == kMostStragglers) {
            return std::nullopt;
        }
    }
    const std::string frame = buildFrame(crc_, FrameType::Connect, 0, {});
    line_.write(frame);
    const Time sent = line_.now() + 2 * onTheWire(frame.size());
    if (!acknowledgedWithin(listener, kLongestAnswer)) {
        return std::nullopt;
    }
    return std::max(line_.now() - sent, Time::zero());
}

void LineProbe::hangUp() {
    sendControl(FrameType::Discon, std::string_view(&kReasonNone, 1));
}

LineInput LineProbe::reply(std::string_view bytes, Time after) {
    line_.write(bytes);
    const Time deadline = line_.now() + 2 * onTheWire(bytes.size()) + after;
    LineInput all;
    while (line_.now() < deadline) {
        const LineInput input = line_.read(deadline);
        all.bytes += input.bytes;
        all.errorFlags |= input.errorFlags;
    }
    return all;
}

}  // namespace velmora
