// An event yield for tests: by default nothing waits; a test may have something happen.
#pragma once

#include <functional>

#include "base/event_yield.h"

namespace velmora::test {

class NoYield : public EventYield {
  public:
    void processEvents() override {
        ++calls;
        if (onYield) {
            onYield();
        }
    }
    std::function<void()> onYield;
    int calls = 0;
};

}  // namespace velmora::test
