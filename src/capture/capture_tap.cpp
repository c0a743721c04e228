#include "capture/capture_tap.h"

#include <utility>

#include "base/byte_text.h"
#include "link/debug.h"

namespace velmora {
namespace {

/// The state as far as it is worth a comment: whether an acknowledgement is awaited shows in the frames.
LinkState withoutTurns(LinkState state) {
    return state == LinkState::WaitAck ? LinkState::Ready : state;
}

}  // namespace

void CaptureTap::listenTo(std::function<LinkState()> state, std::function<CapturedPort()> port) {
    state_ = std::move(state);
    port_ = std::move(port);
}

void CaptureTap::trace(std::string_view categories, std::string_view label, std::string_view data) {
    if (recorder_) {
        if (categories == "STATE") {
            noteState();
        } else if (categories.ends_with("ERROR")) {
            recorder_->note(hexEscaped(label) + (data.empty() ? "" : " ") + hexEscaped(data));
        } else if (label == "PLP_ERROR") {
            recorder_->note("error: a frame was refused, or its answer did not come in time");
        }
    }
    next_.trace(categories, label, data);
}

void CaptureTap::noteState() {
    const LinkState state = withoutTurns(state_());
    if (state != noted_) {
        noted_ = state;
        recorder_->note("state: " + trimRight(linkStateName(state)));
    }
}

void CaptureTap::portOpened(std::intptr_t /*handle*/) {
    if (recorder_) {
        recorder_->portOpened(port_());
    }
}

void CaptureTap::portClosing(std::intptr_t /*handle*/) {
    if (recorder_) {
        recorder_->note("port closed");
    }
}

void CaptureTap::portRead(std::string_view bytes) {
    if (recorder_) {
        recorder_->received(bytes);
    }
}

void CaptureTap::portWriting(std::string_view bytes) {
    if (recorder_) {
        recorder_->sent(bytes);
    }
}

}  // namespace velmora
