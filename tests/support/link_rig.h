// A link with everything around it faked, and the Organiser's end of the line in a test's hands.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/byte_text.h"
#include "link/plp.h"
#include "link/server_state.h"
#include "support/fake_timers.h"
#include "support/no_yield.h"
#include "support/recording_trace.h"
#include "support/recording_window.h"
#include "support/scripted_port.h"

namespace velmora::test {

/// Services that remember their events; a test may have something happen in them.
class RecordingServices : public ServiceEvents {
  public:
    using Event = std::pair<std::int32_t, std::string>;

    void Services(std::int32_t& code, std::string& payload) override {
        events.emplace_back(code, payload);
        if (onEvent) {
            onEvent(code, payload);
        }
    }
    std::vector<Event> events;
    std::function<void(std::int32_t&, std::string&)> onEvent;
};

/// A window in which other handlers run while its state is set or a warning shown, as they do behind a
/// message box.
class BusyWindow : public RecordingWindow {
  public:
    void setState(std::int32_t newState) override {
        RecordingWindow::setState(newState);
        if (onState) {
            onState(newState);
        }
    }
    void ShowWarning(const std::string& text2, const std::string& text3) override {
        RecordingWindow::ShowWarning(text2, text3);
        if (onWarning) {
            onWarning();
        }
    }
    void setErrorMsg(const std::string& text) override {
        RecordingWindow::setErrorMsg(text);
        if (onErrorMsg) {
            onErrorMsg();
        }
    }
    std::function<void(std::int32_t)> onState;
    std::function<void()> onWarning;
    std::function<void()> onErrorMsg;
};

/// A port in which other handlers run during a read.
class BusyPort : public ScriptedPort {
  public:
    bool GetInput(std::size_t maximum, std::string& text) override {
        const bool done = ScriptedPort::GetInput(maximum, text);
        readLengths.push_back(maximum);
        if (onRead) {
            onRead();
        }
        return done;
    }
    std::function<void()> onRead;
    std::vector<std::size_t> readLengths;
};

/// A frame in short: "ACK 1", "DISCON C0", "CONNECT", "CONNECT 30", "DATA 2 hello".
inline std::string inShort(const Crc& crc, std::string_view wire) {
    const auto frame = parseFrame(crc, wire);
    if (!frame) {
        return "broken " + hexDump(wire);
    }
    const std::string sequence = std::to_string(frame->sequence);
    switch (static_cast<FrameType>(frame->type)) {
        case FrameType::Ack:
            return "ACK " + sequence;
        case FrameType::Discon:
            return "DISCON " + hexDump(frame->data);
        case FrameType::Connect:
            return frame->data.empty() ? "CONNECT" : "CONNECT " + hexDump(frame->data);
        case FrameType::Data:
            return "DATA " + sequence + " " + frame->data;
    }
    return "type " + std::to_string(frame->type);
}

class LinkRig {
  public:
    LinkRig() {
        crc.load_CRCtable();
        // No rate, so bytes take no time; what that changes is tested on its own.
        port.settings = "no rate";
        plp.setServices(services);
        comTimer.setInterval(milliseconds(20));
        comTimer.onTick([this] { poll(); });
        plpTimer.onTick([this] { plp.PLP_Timeout(); });
    }

    /// Starts the link as the server's controller does.
    int start() {
        const int result = plp.PLP_Start(port, plpTimer);
        window.current = result > 1 ? Offline : WaitLink;
        return result;
    }
    /// Stops it as the controller does.
    void stop() {
        stopping = true;
        plp.PLP_Stop();
        stopping = false;
        window.current = Offline;
    }
    /// The tick of the receive poll, as the controller handles it.
    void poll() {
        if (window.current == LinkFailed) {
            stop();
        } else if (window.current > Offline) {
            bool waiting = false;
            try {
                waiting = port.InBufferCount() > 0;
            } catch (const CommError&) {
                stop();
            }
            if (waiting) {
                window.setState(plp.PLP_ReceiveEvent());
            }
        }
    }
    /// Starts the link and takes it to a state; then forgets everything recorded on the way. In Ready and
    /// WaitAck the last DATA received was 1 and the next, or the one outstanding, is 1.
    void bringTo(LinkState state) {
        start();
        if (state == LinkState::Idle) {
            plp.PLP_Send(FrameType::Discon, {});
        }
        if (state == LinkState::Linking) {
            arrive(FrameType::Connect, 0);
        }
        if (state == LinkState::Ready || state == LinkState::WaitAck) {
            arrive(FrameType::Connect, 0);
            arrive(FrameType::Data, 1);
        }
        if (state == LinkState::WaitAck) {
            plp.PLP_Send(FrameType::Data, "outstanding");
        }
        forget();
    }
    void forget() {
        port.sent.clear();
        services.events.clear();
        window.states.clear();
        trace.entries.clear();
    }

    std::string frame(FrameType type, std::uint8_t sequence, std::string_view data = {}) const {
        return buildFrame(crc, type, sequence, data);
    }
    /// Bytes arrive and the poll notices them.
    int arrive(std::string_view bytes) {
        port.input.append(bytes);
        return plp.PLP_ReceiveEvent();
    }
    int arrive(FrameType type, std::uint8_t sequence, std::string_view data = {}) {
        return arrive(frame(type, sequence, data));
    }

    /// What was sent, each frame in short.
    std::vector<std::string> sent() const {
        std::vector<std::string> frames;
        for (const std::string& wire : port.sent) {
            frames.push_back(inShort(crc, wire));
        }
        return frames;
    }
    /// The trace as "CATEGORIES|label|data", frames in short.
    std::vector<std::string> traced() const {
        std::vector<std::string> lines;
        for (const RecordingTrace::Entry& entry : trace.entries) {
            const bool isFrame = entry.data.substr(0, kHeaderLength) == "\x16\x10\x02";
            lines.push_back(entry.categories + "|" + entry.label + "|" +
                            (isFrame ? inShort(crc, entry.data) : entry.data));
        }
        return lines;
    }
    std::size_t countTraced(std::string_view categories, std::string_view label) const {
        std::size_t count = 0;
        for (const RecordingTrace::Entry& entry : trace.entries) {
            count += entry.categories == categories && entry.label == label ? 1 : 0;
        }
        return count;
    }

    bool stopping = false;
    FakeTime time;
    FakeTime::FakeTimer& comTimer = time.makeTimer();
    FakeTime::FakeTimer& plpTimer = time.makeTimer();
    Crc crc;
    BusyPort port;
    BusyWindow window;
    RecordingTrace trace;
    NoYield yield;
    RecordingServices services;
    PLP plp{crc, window, comTimer, trace, yield, time};
};

}  // namespace velmora::test
