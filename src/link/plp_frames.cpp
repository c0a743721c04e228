// What the link does with each frame that passed its check, by the frame's type and the link's state.
#include <utility>

#include "link/plp.h"
#include "link/server_state.h"

namespace velmora {
namespace {

constexpr std::uint8_t kFirstSequence = 1;

std::uint8_t following(std::uint8_t sequence) {
    return static_cast<std::uint8_t>((sequence + 1) % kSequenceModulus);
}

}  // namespace

PLP::Verdict PLP::takeFrame(ParsedFrame& frame) {
    switch (static_cast<FrameType>(frame.type)) {
        case FrameType::Ack:
            return takeAck(frame.sequence);
        case FrameType::Discon:
            return takeDiscon();
        case FrameType::Connect:
            return takeConnect(frame.sequence);
        case FrameType::Data:
            return takeData(frame);
    }
    return Verdict::Reject;
}

PLP::Verdict PLP::takeAck(std::uint8_t sequence) {
    switch (state_) {
        case LinkState::Idle:
        case LinkState::Linking:
        case LinkState::Ready:
            break;
        case LinkState::WaitLink:
            receiveSequence_ = sequence;
            sendSequence_ = kFirstSequence;
            state_ = LinkState::Ready;
            window_.setState(Connect);
            break;
        case LinkState::WaitAck:
            if (sequence != sendSequence_) {
                return Verdict::Reject;
            }
            sendSequence_ = following(sendSequence_);
            state_ = LinkState::Ready;
            if (resendBudget_ == kMaxResends) {  // otherwise a copy may still be on its way
                wire_.allOut(clock_.monotonic());
            }
            giveEvent(PLP_EV_ACKED, {});
            break;
    }
    return Verdict::Accept;
}

PLP::Verdict PLP::takeDiscon() {
    if (state_ != LinkState::Idle) {
        PLP_Down();
    }
    return Verdict::Accept;
}

PLP::Verdict PLP::takeConnect(std::uint8_t sequence) {
    switch (state_) {
        case LinkState::Idle:
        case LinkState::Linking:
            return Verdict::Accept;
        case LinkState::WaitLink:
            return answerLinkRequest(sequence);
        case LinkState::Ready:
        case LinkState::WaitAck: {
            // The Organiser has started afresh.
            const Run run(*this);
            giveEvent(PLP_EV_RESET, {});
            if (run.over()) {
                return Verdict::Ignore;
            }
            state_ = LinkState::WaitLink;
            return answerLinkRequest(sequence);
        }
    }
    return Verdict::Reject;  // unreachable: every state is above
}

PLP::Verdict PLP::answerLinkRequest(std::uint8_t sequence) {
    receiveSequence_ = sequence;
    sendSequence_ = kFirstSequence;
    if (!sendFrame(FrameType::Ack, {})) {  // a failed write has its own state to show
        return Verdict::Ignore;
    }
    state_ = LinkState::Linking;
    window_.setState(Connect);
    return Verdict::Accept;
}

PLP::Verdict PLP::takeData(ParsedFrame& frame) {
    switch (state_) {
        case LinkState::Idle:
            // The text of the number 0 goes along here and nowhere else; the Organiser ignores it.
            sendFrame(FrameType::Connect, "0");
            return Verdict::Accept;
        case LinkState::WaitLink:
        case LinkState::Linking:
            return takeFirstData(frame);
        case LinkState::Ready:
            if (frame.sequence == following(receiveSequence_)) {
                return takeNextData(frame);
            }
            break;
        case LinkState::WaitAck:
            break;
    }
    // A repeat is not acknowledged again.
    return frame.sequence == receiveSequence_ ? Verdict::Ignore : Verdict::Reject;
}

PLP::Verdict PLP::takeFirstData(ParsedFrame& frame) {
    const Run run(*this);
    if (frame.sequence != kFirstSequence) {
        sendFrame(FrameType::Discon, std::string_view(&kReasonWrongSequence, 1));
        if (!run.over()) {
            PLP_Down();
        }
        return Verdict::Accept;
    }
    state_ = LinkState::Ready;
    receiveSequence_ = kFirstSequence;
    sendSequence_ = kFirstSequence;
    if (sendFrame(FrameType::Ack, {})) {
        window_.setState(Connect);
    }
    if (!run.over() && !frame.data.empty()) {
        giveEvent(PLP_EV_DATA, std::move(frame.data));
    }
    return Verdict::Accept;
}

PLP::Verdict PLP::takeNextData(ParsedFrame& frame) {
    const Run run(*this);
    receiveSequence_ = frame.sequence;
    sendFrame(FrameType::Ack, {});
    if (!run.over()) {
        giveEvent(PLP_EV_DATA, std::move(frame.data));
    }
    return Verdict::Accept;
}

}  // namespace velmora
