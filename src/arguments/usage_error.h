// A command line that makes no sense.
#pragma once

#include <stdexcept>

namespace velmora {

/// What is wrong with a command line: the text is one sentence without a full stop, for the user.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace velmora
