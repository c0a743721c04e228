#include "eventloop/inhibitor_posix.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <utility>

#include "eventloop/login_manager_posix.h"

namespace velmora {

Inhibitor::Inhibitor(QDBusConnection bus, QStringList wishes, QString why, QString mode)
    : bus_(std::move(bus)), wishes_(std::move(wishes)), why_(std::move(why)), mode_(std::move(mode)) {}

void Inhibitor::take() {
    if (call_ == nullptr && !held_.isValid()) {
        ask(0);
    }
}

void Inhibitor::release() {
    call_.reset();
    held_ = QDBusUnixFileDescriptor();
}

void Inhibitor::ask(qsizetype wish) {
    if (wish >= wishes_.size() || !bus_.isConnected()) {
        return;
    }
    QDBusMessage request = QDBusMessage::createMethodCall(
        LoginManager::kService, LoginManager::kPath, LoginManager::kInterface, QStringLiteral("Inhibit"));
    request.setAutoStartService(false);
    request.setArguments({wishes_[wish], QStringLiteral("Velmora"), why_, mode_});
    call_ = std::make_unique<QDBusPendingCallWatcher>(bus_.asyncCall(request));
    // Queued, so that the call can be done away with there: an answer that came before the event loop ran
    // would outlive its deleteLater, and its copy of the descriptor would hold on.
    QObject::connect(
        call_.get(), &QDBusPendingCallWatcher::finished, &context_,
        [this, wish, asked = ++asked_] {
            if (asked == asked_ && call_ != nullptr) {
                answered(wish);
            }
        },
        Qt::QueuedConnection);
}

void Inhibitor::answered(qsizetype wish) {
    const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *std::exchange(call_, nullptr);
    if (reply.isError()) {
        ask(wish + 1);
    } else {
        held_ = reply.value();
    }
}

}  // namespace velmora
