// Where a running link is listened to.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "capture/capture_recorder.h"
#include "link/link_state.h"
#include "link/trace.h"
#include "serial/port_observer.h"

namespace velmora {

/// Stands between the link and its trace, and beside its port, and records what both are told: bytes from the
/// port, changes of the link's state and errors from the trace. Records nothing until it is told where to.
class CaptureTap : public Trace, public PortObserver {
  public:
    /// `next` is the trace that all entries go on to; it must outlive this object.
    explicit CaptureTap(Trace& next) : next_(next) {}

    /// Where the link's state comes from, and what is known of the port that has just been opened.
    void listenTo(std::function<LinkState()> state, std::function<CapturedPort()> port);
    /// Records into the target from now on; what is passed must outlive this object or the next call.
    void record(const Clock& clock, CaptureTarget& target) { recorder_.emplace(clock, target); }
    /// Records no more, and hands over what was gathered.
    void stop() { recorder_.reset(); }

    void trace(std::string_view categories, std::string_view label, std::string_view data) override;
    void portOpened(std::intptr_t handle) override;
    void portClosing(std::intptr_t handle) override;
    void portRead(std::string_view bytes) override;
    void portWriting(std::string_view bytes) override;

  private:
    void noteState();

    Trace& next_;
    std::function<LinkState()> state_;
    std::function<CapturedPort()> port_;
    std::optional<CaptureRecorder> recorder_;
    LinkState noted_ = LinkState::Idle;
};

}  // namespace velmora
