// State changes by services, which must never start a stopped server.
#pragma once

#include <cstdint>

#include "link/server_state.h"
#include "link/server_window.h"

namespace velmora {

/// Sets the window's state unless the server was stopped meanwhile (pending events run inside a send).
/// Setting a running state then would start it again. Returns whether the server runs.
inline bool setStateWhileRunning(ServerWindow& window, ServerState newState) {
    if (window.state() < WaitLink) {
        return false;
    }
    window.setState(newState);
    return true;
}

}  // namespace velmora
