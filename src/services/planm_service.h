// PLANM: the menu of worksheet formats that the Organiser offers its user.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "link/frame_sender.h"
#include "services/service_handler.h"

namespace velmora {

/// One line of the menu.
struct SheetFormatEntry {
    std::uint8_t number = 0;  ///< by which the Organiser names the format later
    std::string name;         ///< up to 255 characters
};

/// Answers its opening with the list of formats and closes on the next event. The list is, for each format,
/// the length of its name, the name, a byte 0 and the number, and a byte 0 at the end. The sender must
/// outlive it.
class PlanmService : public ServiceHandler {
  public:
    /// `formats`: what is offered, in this order.
    PlanmService(FrameSender& sender, std::vector<SheetFormatEntry> formats)
        : sender_(sender), formats_(std::move(formats)) {}

    void handle(std::int32_t& code, std::string& payload) override;

  private:
    std::string menu() const;

    FrameSender& sender_;
    std::vector<SheetFormatEntry> formats_;
};

}  // namespace velmora
