// Telling the polling of an idle link from what happens on it.
#pragma once

#include <string_view>

#include "link/link_state.h"

namespace velmora {

/// Reads the trace's entries in their order and says which of them only tell that nothing happens: the looks
/// at the port, link requests that are repeated, acknowledgements that keep a link alive, and the states
/// behind them. The link request that a link is begun with is none of them, nor is a wait that ends in a
/// frame sent again, nor a frame that came damaged.
class IdlePolling {
  public:
    /// Whether the next entry is of that kind. `state` is the link's as the entry was written; the others are
    /// Trace::trace's.
    bool covers(std::string_view categories, std::string_view label, std::string_view data, LinkState state);

  private:
    /// What the newest entries belong to.
    enum class Within { Nothing, Look, Timeout };

    Within next(std::string_view categories, std::string_view label, std::string_view data,
                LinkState state) const;

    Within within_ = Within::Nothing;
};

}  // namespace velmora
