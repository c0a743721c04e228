// An Organiser on which somebody has started a transfer, under a clock of the test's own.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "link/crc.h"
#include "link/frame_cutter.h"
#include "link/frames.h"

namespace velmora::test {

/// Calls every half second until it is answered, then sends the name of a service and repeats that until it
/// is acknowledged; acknowledges link requests.
class SimulatedHandheld {
  public:
    using Time = std::chrono::microseconds;
    struct Sent {
        Time at;
        std::string frame;
    };

    /// `first` is the time of its first call, `reaction` what it takes for an answer.
    SimulatedHandheld(Time first, Time reaction) : next_(first), reaction_(reaction) { crc_.load_CRCtable(); }

    Time nextTimer() const { return next_; }
    /// What it sends when its timer has run down.
    Sent tick() {
        const Time now = next_;
        next_ += kRepeat;
        if (!up_) {
            return {now, buildFrame(crc_, FrameType::Connect, 0, {})};
        }
        up_ = --repeats_ > 0;
        return {now, service()};
    }
    /// What it sends upon some bytes.
    std::vector<Sent> receive(std::string_view bytes, Time now) {
        std::vector<Sent> sent;
        cutter_.append(bytes);
        while (const auto cut = cutter_.next()) {
            if (const auto frame = parseFrame(crc_, *cut)) {
                react(*frame, now + reaction_, sent);
            }
        }
        return sent;
    }
    /// The types of the frames that it got, in their order.
    const std::vector<std::uint8_t>& heard() const { return heard_; }

  private:
    static constexpr Time kRepeat = std::chrono::milliseconds(500);
    static constexpr Time kPause = std::chrono::seconds(1);
    static constexpr int kMostRepeats = 4;

    std::string service() const { return buildFrame(crc_, FrameType::Data, 1, "FTRAN"); }
    void bringUp(Time at, std::vector<Sent>& sent) {
        if (!up_) {
            up_ = true;
            repeats_ = kMostRepeats;
            sent.push_back({at, service()});
            next_ = at + kRepeat;
        }
    }
    void react(const ParsedFrame& frame, Time at, std::vector<Sent>& sent) {
        heard_.push_back(frame.type);
        switch (static_cast<FrameType>(frame.type)) {
            case FrameType::Connect:
                sent.push_back({at, buildFrame(crc_, FrameType::Ack, 0, {})});
                bringUp(at, sent);
                break;
            case FrameType::Ack:
                bringUp(at, sent);
                break;
            case FrameType::Discon:
                up_ = false;
                next_ = at + kPause;
                break;
            case FrameType::Data:
                break;
        }
    }

    Crc crc_;
    FrameCutter cutter_;
    std::vector<std::uint8_t> heard_;
    Time next_;
    Time reaction_;
    bool up_ = false;
    int repeats_ = 0;
};

}  // namespace velmora::test
