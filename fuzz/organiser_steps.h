// What an input of the virtual Organiser's fuzzer consists of: a byte for the command, then what the server
// does about each link request and DATA frame that it gets, a byte for its kind and what that kind reads. At
// the end of the input the server falls silent.
#pragma once

#include <cstdint>

namespace velmora::fuzz {

enum ServerStep : std::uint8_t {
    kAnswer,       ///< text: acknowledges, then sends a reply
    kRefuse,       ///< reason: acknowledges, then ends the link
    kAcknowledge,  ///< nothing else
    kTwice,        ///< text: the reply comes twice
    kFrame,        ///< type and sequence, text
    kBytes,        ///< text: no frame at all
    kLater,        ///< tenths of seconds, text: the reply comes late
    kSilence,      ///< nothing
    kServerSteps,
};

}  // namespace velmora::fuzz
