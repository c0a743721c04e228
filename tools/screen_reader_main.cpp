// Plays a screen reader on the bus of assistive technology (AT-SPI 2), for tests: tells what it could speak,
// and uses controls as a person without a mouse and a keyboard does.
#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QSocketNotifier>
#include <QStringList>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <utility>

namespace {

/// An object of a program: the program's name on the bus, and its path there.
struct Reference {
    QString program;
    QDBusObjectPath path;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Reference& reference) {
    argument.beginStructure();
    argument << reference.program << reference.path;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Reference& reference) {
    argument.beginStructure();
    argument >> reference.program >> reference.path;
    argument.endStructure();
    return argument;
}

}  // namespace

Q_DECLARE_METATYPE(Reference)

namespace {

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString kAction = QStringLiteral("org.a11y.atspi.Action");
const Reference kDesktop{QStringLiteral("org.a11y.atspi.Registry"),
                         QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root"))};

/// What the programs tell of their windows.
class Accessibles {
  public:
    explicit Accessibles(QDBusConnection bus) : bus_(std::move(bus)) {}

    QString role(const Reference& object) const {
        return answer(object, kAccessible, QStringLiteral("GetRoleName")).value(0).toString();
    }
    QString name(const Reference& object) const {
        const QVariantList property = answer(object, QStringLiteral("org.freedesktop.DBus.Properties"),
                                             QStringLiteral("Get"), {kAccessible, QStringLiteral("Name")});
        return property.value(0).value<QDBusVariant>().variant().toString();
    }
    QList<Reference> children(const Reference& object) const {
        const QVariantList list = answer(object, kAccessible, QStringLiteral("GetChildren"));
        return list.isEmpty() ? QList<Reference>() : qdbus_cast<QList<Reference>>(list.constFirst());
    }
    /// Does what a click would do; false when the object has no such action.
    bool press(const Reference& object) const {
        return answer(object, kAction, QStringLiteral("DoAction"), {0}).value(0).toBool();
    }
    /// Calls `visit` with an object and all below it, until one is met that it wants; that one.
    std::optional<Reference> find(const Reference& object,
                                  const std::function<bool(const Reference&, int depth)>& visit,
                                  int depth = 0) const {
        if (visit(object, depth)) {
            return object;
        }
        for (const Reference& child : children(object)) {
            if (auto found = find(child, visit, depth + 1)) {
                return found;
            }
        }
        return {};
    }

  private:
    QVariantList answer(const Reference& object, const QString& interface, const QString& method,
                        const QVariantList& arguments = {}) const {
        QDBusMessage call =
            QDBusMessage::createMethodCall(object.program, object.path.path(), interface, method);
        call.setArguments(arguments);
        return bus_.call(call).arguments();
    }

    QDBusConnection bus_;
};

/// Prints "shows ROLE: NAME" for what begins to show and has a name, or whose parts have one.
class ScreenReader : public QObject {
    Q_OBJECT

  public:
    explicit ScreenReader(QDBusConnection bus) : bus_(bus), accessibles_(std::move(bus)) {}

    /// Programs tell only of what somebody asked the registry for.
    bool listen() {
        QDBusMessage wish = QDBusMessage::createMethodCall(
            kDesktop.program, QStringLiteral("/org/a11y/atspi/registry"),
            QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("RegisterEvent"));
        wish.setArguments({QStringLiteral("object:state-changed:showing")});
        if (bus_.call(wish).type() == QDBusMessage::ErrorMessage) {
            return false;
        }
        return bus_.connect({}, {}, QStringLiteral("org.a11y.atspi.Event.Object"),
                            QStringLiteral("StateChanged"), this, SLOT(changed(QDBusMessage)));
    }
    /// "list" prints all that the programs show; "press NAME" uses the control of that name.
    void obey(const std::string& order) const {
        constexpr std::string_view kPress = "press ";
        if (order.starts_with(kPress)) {
            press(QString::fromStdString(order.substr(kPress.size())));
            return;
        }
        accessibles_.find(kDesktop, [this](const Reference& object, int depth) {
            std::cout << std::string(static_cast<std::size_t>(depth), ' ') << words(object) << '\n';
            return false;
        });
        std::cout << "listed" << std::endl;
    }

  private slots:
    void changed(const QDBusMessage& message) const {
        const QVariantList arguments = message.arguments();
        if (arguments.value(0).toString() != QStringLiteral("showing") || arguments.value(1).toInt() != 1) {
            return;
        }
        accessibles_.find({message.service(), QDBusObjectPath(message.path())},
                          [this](const Reference& object, int) {
                              if (!accessibles_.name(object).isEmpty()) {
                                  std::cout << "shows " << words(object) << std::endl;
                              }
                              return false;
                          });
    }

  private:
    std::string words(const Reference& object) const {
        return (accessibles_.role(object) + QStringLiteral(": ") + accessibles_.name(object)).toStdString();
    }
    void press(const QString& name) const {
        const auto control = accessibles_.find(kDesktop, [&](const Reference& object, int) {
            return accessibles_.name(object) == name && accessibles_.role(object) != QStringLiteral("label");
        });
        const bool pressed = control && accessibles_.press(*control);
        std::cout << (pressed ? "pressed " : "cannot press ") << name.toStdString() << std::endl;
    }

    QDBusConnection bus_;
    Accessibles accessibles_;
};

/// The bus of assistive technology, which the session's bus starts.
QDBusConnection accessibilityBus() {
    const QDBusMessage address = QDBusConnection::sessionBus().call(
        QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                       QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
    return QDBusConnection::connectToBus(address.arguments().value(0).toString(),
                                         QStringLiteral("accessibility"));
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    QCoreApplication application(argc, argv);
    qDBusRegisterMetaType<Reference>();
    qDBusRegisterMetaType<QList<Reference>>();
    const QDBusConnection bus = accessibilityBus();
    ScreenReader reader(bus);
    if (!bus.isConnected() || !reader.listen()) {
        std::cerr << "no bus of assistive technology: " << bus.lastError().message().toStdString() << '\n';
        return 1;
    }
    std::cout << "ready" << std::endl;
    QSocketNotifier orders(0, QSocketNotifier::Read);
    QObject::connect(&orders, &QSocketNotifier::activated, &reader, [&reader] {
        // Of orders that come together, the notifier tells once.
        do {
            std::string order;
            if (!std::getline(std::cin, order)) {
                QCoreApplication::exit(0);
                return;
            }
            reader.obey(order);
        } while (std::cin.rdbuf()->in_avail() > 0);
    });
    return QCoreApplication::exec();
}

#include "screen_reader_main.moc"
