#include <QCryptographicHash>
#include <stdexcept>

#include "eventloop/bus_activation_posix.h"
#include "eventloop/only_instance.h"

namespace velmora {
namespace {

/// No part of a name on a bus may begin with a digit.
QString busName(const std::string& purpose) {
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(purpose), QCryptographicHash::Sha1);
    return QStringLiteral("org.velmora.Velmora.c") + QString::fromLatin1(hash.toHex());
}

}  // namespace

class OnlyInstance::Watch : public BusActivation {
  public:
    using BusActivation::BusActivation;
};

OnlyInstance::OnlyInstance(const std::string& purpose)
    : watch_(
          std::make_unique<Watch>(QDBusConnection::sessionBus(), busName(purpose), [this] { handler_(); })) {
    if (!watch_->first() && !watch_->activateOther()) {
        throw std::runtime_error("Velmora runs already, and does not answer.");
    }
}

OnlyInstance::~OnlyInstance() = default;

bool OnlyInstance::first() const {
    return watch_->first();
}

}  // namespace velmora
