// What the link promises of the frames that it sends.
#pragma once

#include <string>
#include <string_view>

#include "link/crc.h"
#include "link/frames.h"
#include "violation.h"

namespace velmora::simulation {

/// Sees every frame of the server.
class LineWatch {
  public:
    /// The link is given up only after a DATA frame and its four repeats.
    void serverSent(const Crc& crc, std::string_view frame) {
        constexpr int kCopies = 5;
        const auto parsed = parseFrame(crc, frame);
        require(parsed.has_value(), "The server sent bytes that are no frame.");
        if (parsed->type == static_cast<std::uint8_t>(FrameType::Data)) {
            copies_ = frame == last_ ? copies_ + 1 : 1;
            last_ = frame;
        }
        const bool givesUp = parsed->type == static_cast<std::uint8_t>(FrameType::Discon) &&
                             parsed->data == std::string_view(&kReasonTooManyErrors, 1);
        require(!givesUp || copies_ >= kCopies, "The link was given up before the last repeat.");
    }

  private:
    std::string last_;
    int copies_ = 0;
};

}  // namespace velmora::simulation
