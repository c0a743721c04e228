// A cable with illnesses.
#pragma once

#include <string>

#include "cable.h"
#include "ill_line.h"

namespace velmora::tools {

/// An IllLine between the ends of a cable. The computer is at the first one, and it hears as its program has
/// set it. Refers to itself: stays where it was made.
class IllCable {
  public:
    using Time = CableDirection::Time;

    /// `first` must outlive this object.
    IllCable(const Illness& illness, const CableEnd& first);
    IllCable(const IllCable&) = delete;
    IllCable& operator=(const IllCable&) = delete;

    /// What becomes of bytes from the first end, and of those to it.
    CableDirection::Change fromFirst();
    CableDirection::Change toFirst();
    /// What comes to the first end that nobody at the second one sent: what it hears of itself, and what the
    /// line has to say.
    std::string takeForFirst(Time now);
    /// When the line has something to say; Time::max() for never.
    Time nextUnasked() const;

  private:
    IllLine line_;
    const CableEnd& first_;
    std::string returned_;
};

}  // namespace velmora::tools
