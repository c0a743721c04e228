// EXIT and SHUTDOWN: requests of the Organiser to stop the server or the program.
#pragma once

#include <cstdint>
#include <string>

#include "link/frame_sender.h"
#include "services/service_handler.h"

namespace velmora {

/// Answers every event with an empty DATA frame and sets its request when the link drops: the request takes
/// effect only then. One object for each of the two services; sender and request must outlive it.
class StopRequestService : public ServiceHandler {
  public:
    /// `request`: the flag of StopRequests that this service stands for.
    StopRequestService(FrameSender& sender, bool& request) : sender_(sender), request_(request) {}

    void handle(std::int32_t& code, std::string& payload) override;

  private:
    FrameSender& sender_;
    bool& request_;
};

}  // namespace velmora
