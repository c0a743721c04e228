#include "link/idle_polling.h"

#include "link/frames.h"

namespace velmora {
namespace {

/// Whether a frame as on the wire has this type, whatever its sequence number.
bool isOfType(std::string_view frame, FrameType type) {
    return frame.size() > kTypeIndex && static_cast<unsigned char>(frame[kTypeIndex]) / kSequenceModulus ==
                                            static_cast<std::size_t>(type) / kSequenceModulus;
}

}  // namespace

bool IdlePolling::covers(std::string_view categories, std::string_view label, std::string_view data,
                         LinkState state) {
    within_ = next(categories, label, data, state);
    return within_ != Within::Nothing;
}

IdlePolling::Within IdlePolling::next(std::string_view categories, std::string_view label,
                                      std::string_view data, LinkState state) const {
    if (categories == "EVENT") {
        return Within::Look;
    }
    if (categories == "STATE") {
        return within_;
    }
    if (data == "timeout") {
        return state == LinkState::WaitAck ? Within::Nothing : Within::Timeout;
    }
    if (label == "recv") {
        // Nothing is outstanding in this state, so it answers nothing.
        const bool keepsAlive = state == LinkState::Ready && isOfType(data, FrameType::Ack);
        return keepsAlive ? Within::Look : Within::Nothing;
    }
    const bool repeats =
        label == "PLP_ERROR" ||
        (label == "send" && (isOfType(data, FrameType::Connect) || isOfType(data, FrameType::Ack)));
    return repeats && within_ == Within::Timeout ? Within::Timeout : Within::Nothing;
}

}  // namespace velmora
