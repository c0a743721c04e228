#include "organiser/organiser_link.h"

#include <algorithm>
#include <utility>

namespace velmora {
namespace {

std::uint8_t nextSequence(std::uint8_t sequence) {
    return static_cast<std::uint8_t>((sequence + 1U) % kSequenceModulus);
}

}  // namespace

OrganiserLink::OrganiserLink(OrganiserLine& line, const WireTime& wire, FrameTrace trace)
    : line_(line), wire_(wire), trace_(std::move(trace)) {
    crc_.load_CRCtable();
}

void OrganiserLink::send(const std::string& frame) {
    if (trace_) {
        trace_(FrameDirection::Sent, frame);
    }
    wire_.handOver(frame.size(), line_.now());
    line_.write(frame);
}

/// When the last byte sent can have left the line, now at the earliest. Waits for answers begin then.
OrganiserLink::Time OrganiserLink::lastByteOut() const {
    const Time now = line_.now();
    return now + wire_.left(now);
}

void OrganiserLink::sendControl(FrameType type, std::uint8_t sequence, std::string_view data) {
    send(buildFrame(crc_, type, sequence, data));
}

/// The next good frame before the deadline. Damaged ones are dropped: the server repeats them.
std::optional<ParsedFrame> OrganiserLink::receive(Time deadline) {
    // What waits at the deadline is still taken, but a line that never falls silent does not hold it up.
    for (bool late = false;; late = line_.now() >= deadline) {
        while (const auto frame = cutter_.next()) {
            if (trace_) {
                trace_(FrameDirection::Received, *frame);
            }
            if (auto parsed = parseFrame(crc_, *frame)) {
                return parsed;
            }
        }
        if (late) {
            return std::nullopt;
        }
        cutter_.append(line_.read(deadline));
    }
}

void OrganiserLink::bringUp() {
    up_ = true;
    proven_ = false;
    crossed_ = false;
    sendSequence_ = 1;
    receiveSequence_ = 0;
}

void OrganiserLink::connect() {
    if (up_) {
        return;
    }
    settle();
    const Time giveUp = line_.now() + kConnectLimit;
    for (int requests = 0; line_.now() < giveUp; ++requests) {
        if (requests >= kRequestsBeforeDisconnect) {
            sendControl(FrameType::Discon, 0, std::string_view(&kReasonNone, 1));
        }
        sendControl(FrameType::Connect, 0);
        const Time deadline = lastByteOut() + kRepeatAfter;
        while (const auto frame = receive(deadline)) {
            if (frame->type == static_cast<std::uint8_t>(FrameType::Connect)) {
                sendControl(FrameType::Ack, 0);
                bringUp();
                crossed_ = true;
                return;
            }
            // Only a link request is acknowledged with 0 here; what else comes belongs to an older link.
            if (frame->type == static_cast<std::uint8_t>(FrameType::Ack) && frame->sequence == 0) {
                bringUp();
                return;
            }
        }
    }
    throw LinkFailure::noLink("No link: no server answers on this line.");
}

void OrganiserLink::drop(const LinkFailure& failure) {
    up_ = false;
    unsettled_ = failure.kind() != LinkFailure::Kind::NoLink;
    throw failure;
}

void OrganiserLink::transmit(Outstanding& outstanding) {
    if (std::exchange(outstanding.acknowledgeAgain, false)) {
        sendControl(FrameType::Ack, receiveSequence_);
    }
    send(outstanding.frame);
    outstanding.leftAt = lastByteOut();
    outstanding.deadline = outstanding.leftAt + kRepeatAfter;
}

void OrganiserLink::repeatNow(Outstanding& outstanding) {
    if (outstanding.prompted < kMostPrompted) {
        ++outstanding.prompted;
        transmit(outstanding);
    }
}

void OrganiserLink::expired(Outstanding& outstanding) {
    if (outstanding.acknowledged) {
        drop(LinkFailure::noLink("The server took the request but does not reply."));
    }
    if (outstanding.acknowledgeAgain && outstanding.prompted < kMostPrompted) {
        repeatNow(outstanding);
        return;
    }
    if (outstanding.repeats == kMostRepeats) {
        drop(LinkFailure::noLink("No link: the server no longer answers."));
    }
    ++outstanding.repeats;
    outstanding.prompted = 0;
    transmit(outstanding);
}

void OrganiserLink::acknowledged(Outstanding& outstanding) {
    if (!outstanding.acknowledged) {
        outstanding.acknowledged = true;
        if (outstanding.repeats + outstanding.prompted == 0) {
            wire_.allOut(line_.now());
            roundTrip_ = std::max(line_.now() - outstanding.leftAt, Time::zero());
        }
        outstanding.deadline = line_.now() + kReplyLimit;
        proven_ = true;
        sendSequence_ = nextSequence(sendSequence_);
    }
}

std::optional<std::string> OrganiserLink::takeData(const ParsedFrame& frame, Outstanding& outstanding) {
    if (frame.sequence == nextSequence(receiveSequence_)) {
        receiveSequence_ = frame.sequence;
        acknowledged(outstanding);
        sendControl(FrameType::Ack, receiveSequence_);
        return frame.data;
    }
    // Once the server has acknowledged the request on its way, it surely had the acknowledgement before.
    if (frame.sequence == receiveSequence_ && !outstanding.acknowledged) {
        outstanding.acknowledgeAgain = true;
        outstanding.deadline = std::min(outstanding.deadline, lastByteOut() + grace());
    }
    return std::nullopt;
}

/// Handles one frame while a request is on its way; the reply when it is that.
std::optional<std::string> OrganiserLink::take(const ParsedFrame& frame, Outstanding& outstanding) {
    switch (static_cast<FrameType>(frame.type)) {
        case FrameType::Ack:
            if (outstanding.acknowledged) {
                break;
            }
            if (frame.sequence == sendSequence_) {
                acknowledged(outstanding);
            } else if (frame.sequence == 0 && !proven_ && std::exchange(crossed_, false)) {
                // It belongs to the link request and says nothing of this frame.
            } else {
                // The server acknowledges an older frame again: this one reached it damaged or not at all.
                repeatNow(outstanding);
            }
            break;
        case FrameType::Discon:
            drop(LinkFailure::refused(frame.data));
        case FrameType::Connect:
            if (proven_) {
                drop(LinkFailure::lost());
            }
            // Nothing has passed over this link yet: the acknowledgement of the server's link request was
            // lost, or the request was sent before it arrived.
            sendControl(FrameType::Ack, 0);
            repeatNow(outstanding);
            break;
        case FrameType::Data:
            return takeData(frame, outstanding);
    }
    return std::nullopt;
}

std::string OrganiserLink::request(std::string_view payload) {
    if (!up_) {
        throw LinkFailure::lost();
    }
    Outstanding outstanding;
    outstanding.frame = buildFrame(crc_, FrameType::Data, sendSequence_, payload);
    transmit(outstanding);
    while (true) {
        const auto frame = receive(outstanding.deadline);
        if (!frame) {
            expired(outstanding);
        } else if (auto reply = take(*frame, outstanding)) {
            return *std::move(reply);
        }
    }
}

OrganiserLink::Time OrganiserLink::grace() const {
    return std::clamp(2 * roundTrip_, kShortestGrace, kLongestGrace);
}

/// A copy of the last request that reaches the server after it dropped the link looks to it like a new link's
/// beginning, and the answer to that, taken for one to the next request, would be a refusal out of nowhere.
void OrganiserLink::settle() {
    if (std::exchange(unsettled_, false)) {
        const Time giveUp = lastByteOut() + kSettleLimit;
        while (line_.now() < giveUp && receive(lastByteOut() + grace())) {
        }
        cutter_.clear();
    }
}

void OrganiserLink::end() {
    try {
        settle();
        for (int sent = 0; up_ && sent < kGoodbyes; ++sent) {
            sendControl(FrameType::Discon, 0, std::string_view(&kReasonNone, 1));
            const Time deadline = lastByteOut() + kRepeatAfter;
            while (const auto frame = receive(deadline)) {
                if (frame->type == static_cast<std::uint8_t>(FrameType::Connect)) {
                    up_ = false;
                    return;
                }
            }
        }
    } catch (const LineError&) {
        // The server was asked to stop and took the line with it.
    }
    up_ = false;
}

}  // namespace velmora
