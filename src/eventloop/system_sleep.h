// The computer's sleep, as the system tells of it and puts it off.
#pragma once

#include <memory>

#include "base/computer_sleep.h"

namespace velmora {

/// Asks the login manager on Linux, and Windows itself. Needs the application object.
class SystemSleep : public ComputerSleep {
  public:
    SystemSleep();
    ~SystemSleep() override;
    SystemSleep(const SystemSleep&) = delete;
    SystemSleep& operator=(const SystemSleep&) = delete;

    void keepAwake(bool wanted) override;

  private:
    class Watch;  // the system's side

    std::unique_ptr<Watch> watch_;
};

}  // namespace velmora
