// A computer that sleeps when a test says so.
#pragma once

#include "base/computer_sleep.h"

namespace velmora::test {

class ScriptedSleep : public ComputerSleep {
  public:
    void keepAwake(bool wanted) override {
        awake = wanted;
        ++changes;
    }
    void sleeps() const { tell(SleepEvent::Sleeps); }
    void wakes() const { tell(SleepEvent::Wakes); }

    bool awake = false;  ///< it is asked to stay awake
    int changes = 0;
};

}  // namespace velmora::test
