// What assistive tools do with controls: nothing is clicked or typed.
#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <QString>

namespace velmora::test {

/// Switches a check box, or chooses an option button; without effect on a control that tools cannot reach.
inline void toggleAssisted(QAbstractButton& button) {
    QAccessibleInterface* reached = QAccessible::queryAccessibleInterface(&button);
    QAccessibleActionInterface* actions = reached != nullptr ? reached->actionInterface() : nullptr;
    if (actions != nullptr) {
        actions->doAction(QAccessibleActionInterface::toggleAction());
    }
}

/// Puts a text into a box; the same.
inline void setAssisted(QLineEdit& box, const QString& text) {
    if (QAccessibleInterface* reached = QAccessible::queryAccessibleInterface(&box)) {
        reached->setText(QAccessible::Value, text);
    }
}

}  // namespace velmora::test
