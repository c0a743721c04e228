// A server for tests of the virtual Organiser: its link with all states, time-outs and resends, under the
// clock of a FakeLine, and services that a test supplies.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "base/byte_text.h"
#include "fake_line.h"
#include "link/crc.h"
#include "link/frame_cutter.h"
#include "link/frames.h"

namespace velmora::test {

/// What a service says to one message: a reply, or a DISCON with a reason.
struct Answer {
    bool refusal = false;
    std::string data;
};
inline Answer reply(std::string data) {
    return {false, std::move(data)};
}
inline Answer refuse(int code) {
    return {true, std::string(1, static_cast<char>(code))};
}

/// Takes the messages of one opening of a service; the first one is the service's name.
class ModelService {
  public:
    virtual ~ModelService() = default;
    virtual Answer opened() { return reply(""); }
    virtual Answer message(const std::string& payload) = 0;
    /// The link went down or the service refused something.
    virtual void closed() {}
};

class ModelServer {
  public:
    enum class State { Idle, WaitLink, Linking, Ready, WaitAck };
    using Time = OrganiserLine::Time;

    explicit ModelServer(FakeLine& line) : line_(line) {
        crc_.load_CRCtable();
        line_.onWrite = [this](const std::string& bytes) { receive(bytes); };
        line_.onAlarm = [this] { timeout(); };
        seekLink();
    }

    void serve(const std::string& name, ModelService& service) { services_[name] = &service; }

    State state() const { return state_; }
    int gaveUp = 0;          ///< times that the resends were spent
    int linksDropped = 0;    ///< DISCON frames of the Organiser that found a link
    int repeatsDropped = 0;  ///< DATA frames that came again

  private:
    static constexpr Time kShort = std::chrono::milliseconds(500);
    static constexpr Time kLong = std::chrono::seconds(30);

    void receive(const std::string& bytes) {
        cutter_.append(bytes);
        while (const auto frame = cutter_.next()) {
            const auto parsed = parseFrame(crc_, *frame);
            if (!parsed || !accept(*parsed)) {
                error();
            }
            if (state_ == State::Idle) {
                down();
                seekLink();
                return;
            }
        }
    }

    bool accept(const ParsedFrame& frame) {
        switch (static_cast<FrameType>(frame.type)) {
            case FrameType::Ack:
                return acceptAck(frame.sequence);
            case FrameType::Discon:
                ++linksDropped;
                down();
                return true;
            case FrameType::Connect:
                if (state_ == State::Ready || state_ == State::WaitAck) {
                    endService();
                    state_ = State::WaitLink;
                }
                if (state_ == State::WaitLink) {
                    receiveSequence_ = frame.sequence;
                    sendSequence_ = 1;
                    send(FrameType::Ack, "");
                    state_ = State::Linking;
                    line_.alarm.reset();
                }
                return true;
            case FrameType::Data:
                return acceptData(frame);
        }
        return false;
    }

    bool acceptAck(std::uint8_t sequence) {
        if (state_ == State::WaitLink) {
            receiveSequence_ = sequence;
            sendSequence_ = 1;
            setReady();
        } else if (state_ == State::WaitAck) {
            if (sequence != sendSequence_) {
                return false;
            }
            sendSequence_ = (sendSequence_ + 1) % 8;
            setReady();
        }
        return true;
    }

    bool acceptData(const ParsedFrame& frame) {
        if (state_ == State::WaitLink || state_ == State::Linking) {
            if (frame.sequence != 1) {
                send(FrameType::Discon, std::string(1, kReasonWrongSequence));
                down();
                return true;
            }
            sendSequence_ = 1;
        } else if (frame.sequence == receiveSequence_) {
            ++repeatsDropped;
            return true;
        } else if (state_ != State::Ready || frame.sequence != (receiveSequence_ + 1) % 8) {
            return false;
        }
        receiveSequence_ = frame.sequence;
        setReady();
        send(FrameType::Ack, "");
        deliver(frame.data);
        return true;
    }

    void deliver(const std::string& payload) {
        Answer answer = refuse(190);
        if (open_ != nullptr) {
            answer = open_->message(payload);
        } else if (const auto found = services_.find(upperCase(payload)); found != services_.end()) {
            open_ = found->second;
            answer = open_->opened();
        }
        send(answer.refusal ? FrameType::Discon : FrameType::Data, answer.data);
        if (answer.refusal) {
            endService();
        }
    }

    void send(FrameType type, std::string_view data) {
        std::uint8_t sequence = 0;
        switch (type) {
            case FrameType::Ack:
                sequence = receiveSequence_;
                break;
            case FrameType::Discon:
                state_ = State::Idle;
                break;
            case FrameType::Connect:
                break;
            case FrameType::Data:
                budget_ = 4;
                sequence = sendSequence_;
                state_ = State::WaitAck;
                line_.alarm = line_.clock + kShort;
                break;
        }
        last_ = buildFrame(crc_, type, sequence, data);
        line_.arrive(last_);
    }

    void setReady() {
        state_ = State::Ready;
        line_.alarm = line_.clock + kLong;
    }

    void seekLink() {
        state_ = State::WaitLink;
        send(FrameType::Connect, "");
        line_.alarm = line_.clock + kShort;
    }

    void down() {
        endService();
        state_ = State::Idle;
        line_.alarm.reset();
        cutter_.clear();
    }

    void endService() {
        if (ModelService* service = std::exchange(open_, nullptr)) {
            service->closed();
        }
    }

    void timeout() {
        if (state_ == State::WaitLink) {
            seekLink();
        } else {
            error();
        }
    }

    void error() {
        if (state_ == State::Ready) {
            send(FrameType::Ack, "");
            line_.alarm = line_.clock + kLong;
        } else if (state_ == State::WaitAck && budget_ > 0) {
            --budget_;
            line_.alarm = line_.clock + kShort;
            line_.arrive(last_);
        } else if (state_ == State::WaitAck) {
            ++gaveUp;
            send(FrameType::Discon, std::string(1, kReasonTooManyErrors));
            down();
            seekLink();
        }
    }

    FakeLine& line_;
    Crc crc_;
    FrameCutter cutter_;
    State state_ = State::Idle;
    std::uint8_t sendSequence_ = 1;
    std::uint8_t receiveSequence_ = 0;
    int budget_ = 0;
    std::string last_;
    std::map<std::string, ModelService*> services_;
    ModelService* open_ = nullptr;
};

}  // namespace velmora::test
