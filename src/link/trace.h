// The protocol trace, as its writers see it.
#pragma once

#include <string_view>

namespace velmora {

/// Takes trace entries. Categories are words joined by ",": "PLP", "STATE", "EVENT", "COM", "COM,DATA",
/// "COM,ERROR".
class Trace {
  public:
    virtual ~Trace() = default;

    /// One entry: its categories, a short label, and a frame as on the wire, a text, or nothing. Label and
    /// text may hold any bytes; an entry is one line all the same. Cheap when nobody listens.
    virtual void trace(std::string_view categories, std::string_view label, std::string_view data) = 0;
};

}  // namespace velmora
