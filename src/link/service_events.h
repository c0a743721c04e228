// The entry through which the link layer hands events to the services.
#pragma once

#include <cstdint>
#include <string>

namespace velmora {

/// Event codes. A handler ends its service by setting the code to 0.
enum ServiceEventCode : std::int32_t {
    PLP_EV_RESET = 0,    ///< the link went down or is stopping
    PLP_EV_DATA = 1,     ///< a new DATA frame was accepted; the payload is its data
    PLP_EV_ACKED = 2,    ///< the server's last DATA frame was acknowledged
    kServiceOpened = 3,  ///< set by the dispatcher: the service was just opened; the payload is its name
};

class ServiceEvents {
  public:
    virtual ~ServiceEvents() = default;

    /// Takes one event. `code` and `payload` may be changed. Never throws.
    virtual void Services(std::int32_t& code, std::string& payload) = 0;
};

/// Requests of the Organiser to stop. Set by the EXIT and SHUTDOWN services when the link drops, read and
/// cleared by the link's receive event, cleared by its start.
struct StopRequests {
    bool exit = false;
    bool shutdown = false;
};

}  // namespace velmora
