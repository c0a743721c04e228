#include "eventloop/login_manager_posix.h"

#include <utility>

namespace velmora {

// A server that is no part of a session may put off the sleep of an idle computer, but not one that somebody
// asks for.
LoginManager::LoginManager(QDBusConnection bus, std::function<void(SleepEvent)> tell)
    : tell_(std::move(tell)),
      untilTold_(bus, {QStringLiteral("sleep")}, QStringLiteral("gives the serial port back first"),
                 QStringLiteral("delay")),
      awake_(bus, {QStringLiteral("sleep:idle"), QStringLiteral("idle")},
             QStringLiteral("a file moves between the Organiser and this computer"),
             QStringLiteral("block")) {
    if (bus.connect(kService, kPath, kInterface, QStringLiteral("PrepareForSleep"), this,
                    SLOT(prepareForSleep(bool)))) {
        untilTold_.take();
    }
}

void LoginManager::keepAwake(bool wanted) {
    wanted ? awake_.take() : awake_.release();
}

void LoginManager::prepareForSleep(bool begins) {
    if (begins) {
        tell_(SleepEvent::Sleeps);
        untilTold_.release();
    } else {
        untilTold_.take();
        tell_(SleepEvent::Wakes);
    }
}

}  // namespace velmora
