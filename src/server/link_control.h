// The link as the server controller drives it.
#pragma once

#include <cstdint>

#include "base/timer.h"
#include "serial/serial_port.h"

namespace velmora {

/// The link layer implements it, tests script it. Each call may set the server's state, and pending events of
/// the user interface may run inside it.
class LinkControl {
  public:
    virtual ~LinkControl() = default;

    /// Opens the port and begins to seek a link. `port` and `PLPtimer` must stay until PLP_Stop. 0 or 1 is
    /// success; 4, 5 or 6 tell why the port could not be opened (index into Strings::PortStatus).
    virtual std::int32_t PLP_Start(SerialPort& port, Timer& PLPtimer) = 0;
    /// Ends the open service, closes the port and disables PLPtimer. Stopping twice is fine.
    virtual void PLP_Stop() = 0;
    /// Reads and handles what waits at the port. The state that follows: OnExit, Shutdown or kNoStateChange.
    virtual std::int32_t PLP_ReceiveEvent() = 0;
    /// Handles the expiry of PLPtimer.
    virtual void PLP_Timeout() = 0;
};

}  // namespace velmora
