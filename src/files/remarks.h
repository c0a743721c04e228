// What a conversion could not keep.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>

namespace velmora {

/// Takes a sentence about something that is left out or changed, without a full stop.
using Tell = std::function<void(const std::string& what)>;

/// Tells of what is left out or changed, a line each, and knows whether there was any.
class Remarks {
  public:
    /// `err` must outlive it.
    explicit Remarks(std::ostream& err) : err_(err) {}

    /// Tells of a file by a name that its user knows.
    Tell about(const std::string& name);
    bool any() const { return any_; }

  private:
    std::ostream& err_;
    bool any_ = false;
};

}  // namespace velmora
