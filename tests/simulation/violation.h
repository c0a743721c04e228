// What must hold and does not.
#pragma once

#include <stdexcept>
#include <string>

namespace velmora::simulation {

/// A promise that was broken; ends the episode. The text says which, in one sentence.
class Violation : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

template <typename Text>
void require(bool holds, const Text& promise) {
    if (!holds) {
        throw Violation(promise);
    }
}

}  // namespace velmora::simulation
