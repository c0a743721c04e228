#include "ui/qt/debug_switch.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace velmora {

DebugSwitch::DebugSwitch(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setFocusPolicy(Qt::TabFocus);
    setMargin(2);
}

void DebugSwitch::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Q_EMIT switched();
    }
}

void DebugSwitch::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Q_EMIT switched();
            break;
        default:
            QLabel::keyPressEvent(event);
    }
}

void DebugSwitch::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void DebugSwitch::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

void DebugSwitch::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(backgroundRole());
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

}  // namespace velmora
