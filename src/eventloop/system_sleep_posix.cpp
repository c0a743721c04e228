#include "eventloop/login_manager_posix.h"
#include "eventloop/system_sleep.h"

namespace velmora {

class SystemSleep::Watch : public LoginManager {
  public:
    using LoginManager::LoginManager;
};

SystemSleep::SystemSleep()
    : watch_(
          std::make_unique<Watch>(QDBusConnection::systemBus(), [this](SleepEvent event) { tell(event); })) {}
SystemSleep::~SystemSleep() = default;

void SystemSleep::keepAwake(bool wanted) {
    watch_->keepAwake(wanted);
}

}  // namespace velmora
