#include "ui/qt/port_number_box.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QRegularExpressionValidator>

#include "ui/port_key_filter.h"

namespace velmora {

namespace {

// Keys without a character move the cursor or leave the box, and those of the clipboard have a meaning of
// their own; they are no business of the filter.
bool isEditingKey(const QKeyEvent& key) {
    for (const auto command : {QKeySequence::SelectAll, QKeySequence::Copy, QKeySequence::Cut,
                               QKeySequence::Paste, QKeySequence::Undo, QKeySequence::Redo}) {
        if (key.matches(command)) {
            return true;
        }
    }
    switch (key.key()) {
        case Qt::Key_Delete:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return true;
        default:
            return key.text().isEmpty();
    }
}

}  // namespace

PortNumberBox::PortNumberBox(QWidget* parent) : QLineEdit(parent) {
    setAttribute(Qt::WA_InputMethodEnabled, false);
    // What is pasted is held to the characters that may be typed.
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9%&'(.]*")), this));
}

void PortNumberBox::keyPressEvent(QKeyEvent* event) {
    if (!isEditingKey(*event) && !portKeyPasses(event->text().at(0).unicode())) {
        Q_EMIT keyRefused();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void PortNumberBox::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Q_EMIT pressed();
    }
    QLineEdit::mousePressEvent(event);
}

}  // namespace velmora
