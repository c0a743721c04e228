// A walk through a window that finds what shuts people out: controls without a name, out of the keyboard's
// reach or order, or told apart by colour alone.
#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleInterface>
#include <QComboBox>
#include <QLabel>
#include <QList>
#include <QPalette>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace velmora::test {

namespace walk {

inline QString nameOf(const QWidget& widget) {
    return QString::fromLatin1(widget.metaObject()->className()) + " \"" + widget.objectName() + "\"";
}

/// The parts that a toolkit control is made of (a list's viewport, a combo box's list) are not its user's.
inline bool isInnerPart(const QWidget& widget) {
    return widget.objectName().startsWith("qt_") || qobject_cast<const QComboBox*>(widget.parentWidget());
}

inline bool takesTab(const QWidget& widget) {
    return widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0 && !widget.focusProxy() &&
           !isInnerPart(widget);
}

inline QList<QWidget*> shownWidgets(const QWidget& window) {
    QList<QWidget*> shown;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisibleTo(&window) && widget->window() == &window && !isInnerPart(*widget)) {
            shown.append(widget);
        }
    }
    return shown;
}

inline QString spokenName(QWidget& widget) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
    return spoken ? spoken->text(QAccessible::Name).trimmed() : QString();
}

/// The child of `ancestor` that holds the widget.
inline const QWidget* branchOf(const QWidget& ancestor, const QWidget& widget) {
    const QWidget* branch = &widget;
    while (branch->parentWidget() != &ancestor) {
        branch = branch->parentWidget();
    }
    return branch;
}

/// Whether `next` lies before `first` on the page: wholly above it, or in its row and wholly to its left.
/// Widgets in different containers are compared by their containers.
inline bool liesBefore(const QWidget& next, const QWidget& first) {
    const QWidget* common = first.parentWidget();
    while (common && !common->isAncestorOf(&next)) {
        common = common->parentWidget();
    }
    if (!common) {
        return false;
    }
    const QRect from = branchOf(*common, first)->geometry();
    const QRect to = branchOf(*common, next)->geometry();
    const bool sameRow = to.top() <= from.bottom() && from.top() <= to.bottom();
    return sameRow ? to.right() < from.left() : to.bottom() < from.top();
}

/// Whether words that tell what the colour tells stand on the window, and are spoken too.
inline bool coloursHaveWords(const QWidget& control, const QList<QWidget*>& shown) {
    const QString spoken = control.accessibleDescription();
    for (const QWidget* widget : shown) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        if (label && !label->text().isEmpty() && spoken.contains(label->text())) {
            return true;
        }
    }
    return false;
}

}  // namespace walk

/// The names of the controls that Tab reaches, in its order, beginning with the first in the chain. Of option
/// buttons that exclude each other all are named: the arrow keys go through them.
inline QStringList tabOrder(QWidget& window) {
    QStringList order;
    for (QWidget* widget = window.nextInFocusChain(); widget != &window;
         widget = widget->nextInFocusChain()) {
        if (walk::takesTab(*widget) && widget->isVisibleTo(&window) && widget->window() == &window) {
            order.append(widget->objectName());
        }
    }
    return order;
}

/// Everything that is wrong with a shown window, a sentence each; empty when it is as it should be. A picture
/// that only decorates says so with the property "decoration".
inline QStringList accessibilityFaults(QWidget& window) {
    QStringList faults;
    if (window.windowTitle().isEmpty()) {
        faults.append("the window has no title");
    }
    const QList<QWidget*> shown = walk::shownWidgets(window);
    for (QWidget* widget : shown) {
        const bool control = widget->focusPolicy() != Qt::NoFocus;
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool picture = label && !label->pixmap(Qt::ReturnByValue).isNull();
        if ((control || (picture && !widget->property("decoration").toBool())) &&
            walk::spokenName(*widget).isEmpty()) {
            faults.append(walk::nameOf(*widget) + " has no accessible name");
        }
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        if (button && button->focusPolicy() == Qt::NoFocus) {
            faults.append(walk::nameOf(*widget) + " cannot be reached by the keyboard");
        }
        const bool coloured = widget->palette().color(QPalette::Active, QPalette::WindowText) !=
                              window.palette().color(QPalette::Active, QPalette::WindowText);
        if (button && coloured && !walk::coloursHaveWords(*widget, shown)) {
            faults.append(walk::nameOf(*widget) + " tells something by its colour alone");
        }
    }
    const QWidget* before = nullptr;
    for (QWidget* widget = window.nextInFocusChain(); widget != &window;
         widget = widget->nextInFocusChain()) {
        if (!walk::takesTab(*widget) || !shown.contains(widget)) {
            continue;
        }
        if (before && walk::liesBefore(*widget, *before)) {
            faults.append(walk::nameOf(*widget) + " comes after " + walk::nameOf(*before) +
                          " in the keyboard's order, but lies before it");
        }
        before = widget;
    }
    return faults;
}

}  // namespace velmora::test
