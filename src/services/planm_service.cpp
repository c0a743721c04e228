#include "services/planm_service.h"

namespace velmora {

void PlanmService::handle(std::int32_t& code, std::string& /*payload*/) {
    if (code != kServiceOpened) {
        code = PLP_EV_RESET;
        return;
    }
    sender_.PLP_Send(FrameType::Data, menu());
}

std::string PlanmService::menu() const {
    std::string menu;
    for (const SheetFormatEntry& format : formats_) {
        menu += static_cast<char>(format.name.size());
        menu += format.name;
        menu += '\0';
        menu += static_cast<char>(format.number);
    }
    menu += '\0';
    return menu;
}

}  // namespace velmora
