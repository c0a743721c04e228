#include "ui/qt/alert_area.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QDialog>
#include <QTimer>

namespace velmora {
namespace {

QAccessibleInterface* withRole(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || !className.startsWith(QLatin1String("velmora::"))) {
        return nullptr;
    }
    if (qobject_cast<AlertArea*>(widget) != nullptr) {
        return new QAccessibleWidget(widget, QAccessible::Notification);
    }
    // The toolkit knows dialogs itself.
    if (widget->isWindow() && qobject_cast<QDialog*>(widget) == nullptr) {
        return new QAccessibleWidget(widget, QAccessible::Window);
    }
    return nullptr;
}

}  // namespace

AlertArea::AlertArea(QWidget* parent) : QWidget(parent) {
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
}

void AlertArea::announce() {
    if (announced_ && !isHidden()) {
        return;
    }
    hide();
    show();
    announced_ = true;
    QTimer::singleShot(0, this, [this] { announced_ = false; });
}

void installAccessibleRoles() {
    QAccessible::installFactory(withRole);
}

}  // namespace velmora
