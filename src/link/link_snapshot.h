// What a link looks like between two events, and whether that fits together.
#pragma once

#include <chrono>
#include <optional>

#include "link/link_state.h"

namespace velmora {

/// What a link has at one moment.
struct LinkSnapshot {
    LinkState state = LinkState::Idle;
    bool hasPort = false;  ///< it runs
    bool hasTimer = false;
    bool portFailed = false;
    bool served = false;                            ///< the window's state is above Offline
    bool polled = false;                            ///< the receive poll is on
    std::optional<std::chrono::milliseconds> wait;  ///< of the protocol timer; nothing while that is off
    int sendSequence = 0;
    int receiveSequence = 0;
    int resendBudget = 0;
};

/// Whether timers, sequences and budget are as the state wants them between two events.
bool fitsTogether(const LinkSnapshot& link);

}  // namespace velmora
