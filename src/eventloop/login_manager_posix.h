// The login manager, which puts the computer to sleep.
#pragma once

#include <QDBusConnection>
#include <QLatin1String>
#include <QObject>
#include <functional>

#include "base/computer_sleep.h"
#include "eventloop/inhibitor_posix.h"

namespace velmora {

/// Hears of sleep and waking on the system bus, and puts sleep off. Sleep always waits until it has been told
/// here. Where no bus or no login manager runs, nothing is told.
class LoginManager : public QObject {
    Q_OBJECT

  public:
    static constexpr QLatin1String kService{"org.freedesktop.login1"};
    static constexpr QLatin1String kPath{"/org/freedesktop/login1"};
    static constexpr QLatin1String kInterface{"org.freedesktop.login1.Manager"};

    LoginManager(QDBusConnection bus, std::function<void(SleepEvent)> tell);

    /// Whether the computer is to stay awake.
    void keepAwake(bool wanted);

  private Q_SLOTS:
    void prepareForSleep(bool begins);

  private:
    std::function<void(SleepEvent)> tell_;
    Inhibitor untilTold_;
    Inhibitor awake_;
};

}  // namespace velmora
