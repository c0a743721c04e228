// What every service is.
#pragma once

#include <cstdint>
#include <string>

#include "link/service_events.h"

namespace velmora {

/// The handler of one named service. It gets every event of the link while its service is open, beginning
/// with kServiceOpened, and replies through a FrameSender. Setting the code to PLP_EV_RESET ends the service.
/// A RunTimeError that leaves handle() is answered by the dispatcher (DISCON 188), which then calls
/// handle() once more with PLP_EV_RESET, so that the handler gives back what it holds.
class ServiceHandler {
  public:
    virtual ~ServiceHandler() = default;
    virtual void handle(std::int32_t& code, std::string& payload) = 0;
};

}  // namespace velmora
