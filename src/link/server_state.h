// The server's states. The number is also the index of the display text shown on entering the state.
#pragma once

#include <cstdint>

namespace velmora {

/// Below WaitLink the server is stopped (port closed), from WaitLink on it runs.
enum ServerState : std::int32_t {
    Welcome = 0,       ///< before start-up has chosen a state
    NoPort = 1,        ///< no usable port
    Shutdown = 2,      ///< SHUTDOWN accepted: the program ends
    OnExit = 3,        ///< EXIT accepted: stopped by the Organiser
    Offline = 4,       ///< stopped
    WaitLink = 5,      ///< port open, waiting for the link
    Connect = 6,       ///< link up
    FileAccess = 7,    ///< accessing a file
    Upload = 8,        ///< file being sent to the Organiser
    Downld = 9,        ///< file being received from the Organiser
    SendDir = 10,      ///< sending a directory
    SendMenu = 11,     ///< sending a menu
    ServiceBusy = 12,  ///< a service is busy, for example sending boot code
    LinkFailed = 13,   ///< a read or write of the port failed; the next poll turns it into Offline
    Error = 14,        ///< too many send errors
};

/// Whether the Organiser has a file under way; what fails now takes it along.
constexpr bool hasFileOpen(std::int32_t state) {
    return state >= FileAccess && state <= ServiceBusy;
}

/// What a state change to this value means: none.
constexpr std::int32_t kNoStateChange = -1;

}  // namespace velmora
