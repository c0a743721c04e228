#include "eventloop/bus_activation_posix.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <utility>

namespace velmora {
namespace {

constexpr QLatin1String kInterface{"org.freedesktop.Application"};
constexpr int kAnswerMilliseconds = 5'000;

/// The object's path is the name with its dots as slashes.
QString pathOf(const QString& name) {
    return QLatin1Char('/') + QString(name).replace(QLatin1Char('.'), QLatin1Char('/'));
}

}  // namespace

BusActivation::BusActivation(QDBusConnection bus, QString name, std::function<void()> activated)
    : bus_(std::move(bus)), name_(std::move(name)), activated_(std::move(activated)) {
    if (!bus_.isConnected()) {
        return;
    }
    // It is there before its name, so that nobody finds the name without it.
    bus_.registerObject(pathOf(name_), this, QDBusConnection::ExportScriptableSlots);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        bus_.interface()->registerService(name_);
    first_ = !reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

bool BusActivation::activateOther() {
    QDBusMessage call =
        QDBusMessage::createMethodCall(name_, pathOf(name_), kInterface, QStringLiteral("Activate"));
    call << QVariantMap();
    return bus_.call(call, QDBus::BlockWithGui, kAnswerMilliseconds).type() == QDBusMessage::ReplyMessage;
}

void BusActivation::Activate(const QVariantMap& /*platformData*/) {
    activated_();
}

}  // namespace velmora
