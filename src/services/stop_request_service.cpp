#include "services/stop_request_service.h"

namespace velmora {

void StopRequestService::handle(std::int32_t& code, std::string& /*payload*/) {
    if (code == PLP_EV_RESET) {
        request_ = true;
        return;
    }
    sender_.PLP_Send(FrameType::Data, {});
}

}  // namespace velmora
