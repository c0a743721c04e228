// The states of the link.
#pragma once

#include <cstdint>

namespace velmora {

enum class LinkState : std::int32_t {
    Idle = 0,      ///< no link
    WaitLink = 1,  ///< link requests are sent, an answer is awaited
    Linking = 2,   ///< the Organiser's link request was acknowledged, its first DATA frame is awaited
    Ready = 3,     ///< link up, nothing outstanding
    WaitAck = 4,   ///< a DATA frame was sent and is not yet acknowledged
};

}  // namespace velmora
