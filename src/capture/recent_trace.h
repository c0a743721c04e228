// What the protocol trace said last.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/clock.h"
#include "link/link_state.h"
#include "link/trace.h"

namespace velmora {

/// Passes trace entries on. Once told to, it keeps the newest of them, whether anybody looks at the trace or
/// not, so that they can be told when something has gone wrong.
class RecentTrace : public Trace {
  public:
    /// `next` is the trace that all entries go on to; it must outlive this object.
    explicit RecentTrace(Trace& next) : next_(next) {}

    /// Keeps so many entries from now on; the clock must outlive this object. `state` is the link's.
    void keep(const Clock& clock, std::function<LinkState()> state, std::size_t entries);

    void trace(std::string_view categories, std::string_view label, std::string_view data) override;

    /// The kept entries as lines, the oldest first, each with its local time ("19:39:35.02") and a tab before
    /// it. What DATA frames hold is masked as FrameMask does it, and so is a service that there is none of.
    std::vector<std::string> lines() const;

  private:
    struct Entry {
        double seconds = 0;
        LinkState state = LinkState::Idle;
        std::string categories;
        std::string label;
        std::string data;
    };

    Trace& next_;
    const Clock* clock_ = nullptr;
    std::function<LinkState()> state_;
    std::size_t capacity_ = 0;
    std::deque<Entry> entries_;
};

}  // namespace velmora
