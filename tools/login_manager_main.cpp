// Plays the login manager on a bus, for tests: grants holds on the computer's sleep, and tells of sleep and
// waking.
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QSocketNotifier>
#include <array>
#include <iostream>
#include <string>

namespace {

constexpr const char* kService = "org.freedesktop.login1";
constexpr const char* kPath = "/org/freedesktop/login1";
constexpr const char* kInterface = "org.freedesktop.login1.Manager";

/// Prints "held MODE WHAT" for each hold and "released MODE WHAT" when its descriptor is closed everywhere.
class LoginManager : public QDBusVirtualObject {
  public:
    /// `refused`: what nobody is granted.
    explicit LoginManager(QString refused) : refused_(std::move(refused)) {}

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() != QStringLiteral("Inhibit") || message.arguments().size() != 4) {
            return false;
        }
        const QString what = message.arguments().at(0).toString();
        const std::string hold = (message.arguments().at(3).toString() + " " + what).toStdString();
        std::array<int, 2> ends{};
        if (what == refused_ || ::pipe2(ends.data(), O_CLOEXEC) != 0) {
            std::cout << "refused " << hold << std::endl;
            return bus.send(message.createErrorReply(QDBusError::AccessDenied, QStringLiteral("refused")));
        }
        std::cout << "held " << hold << std::endl;
        awaitRelease(ends[0], hold);
        const bool sent =
            bus.send(message.createReply(QVariant::fromValue(QDBusUnixFileDescriptor(ends[1]))));
        ::close(ends[1]);  // the reply has its own
        return sent;
    }

  private:
    void awaitRelease(int end, const std::string& hold) {
        auto* const closed = new QSocketNotifier(end, QSocketNotifier::Read, this);
        QObject::connect(closed, &QSocketNotifier::activated, this, [closed, end, hold] {
            std::cout << "released " << hold << std::endl;
            closed->setEnabled(false);
            closed->deleteLater();
            ::close(end);
        });
    }

    QString refused_;
};

/// Standard input orders "sleep" and "wake"; its end is the program's.
void obey(QDBusConnection& bus) {
    std::string order;
    if (!std::getline(std::cin, order)) {
        QCoreApplication::exit(0);
        return;
    }
    QDBusMessage signal = QDBusMessage::createSignal(kPath, kInterface, QStringLiteral("PrepareForSleep"));
    signal.setArguments({order == "sleep"});
    bus.send(signal);
}

}  // namespace

/// velmora-login-manager BUS_ADDRESS [WHAT_IS_REFUSED]
int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 2) {
        std::cerr << "velmora-login-manager BUS_ADDRESS [WHAT_IS_REFUSED]\n";
        return 2;
    }
    QDBusConnection bus = QDBusConnection::connectToBus(words[1], QStringLiteral("bus"));
    LoginManager manager(words.value(2));
    if (!bus.registerVirtualObject(kPath, &manager) || !bus.registerService(kService)) {
        std::cerr << bus.lastError().message().toStdString() << "\n";
        return 1;
    }
    std::cout << "ready" << std::endl;
    QSocketNotifier orders(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&orders, &QSocketNotifier::activated, &orders, [&bus] { obey(bus); });
    return QCoreApplication::exec();
}
