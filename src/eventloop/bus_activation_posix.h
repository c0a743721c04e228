// A program that is on a bus at most once.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantMap>
#include <functional>

namespace velmora {

/// Takes a name on a bus and is activated under it as a desktop program is, by the interface
/// org.freedesktop.Application. `activated` runs on the event loop.
class BusActivation : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

  public:
    BusActivation(QDBusConnection bus, QString name, std::function<void()> activated);

    /// Whether nobody else had the name; also where no bus runs.
    bool first() const { return first_; }
    /// Activates the one who has it; false when he does not answer within five seconds.
    bool activateOther();

  public Q_SLOTS:
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);

  private:
    QDBusConnection bus_;
    QString name_;
    std::function<void()> activated_;
    bool first_ = true;
};

}  // namespace velmora
