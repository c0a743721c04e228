#include "ui/qt/qt_message_box.h"

#include <QAbstractButton>

#include "ui/qt/core_texts.h"
#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

QMessageBox::Icon qtIcon(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Information:
            return QMessageBox::Information;
        case BoxIcon::Question:
            return QMessageBox::Question;
        case BoxIcon::Exclamation:
            return QMessageBox::Warning;
        case BoxIcon::Critical:
            return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

// A box that belongs to a minimised or hidden window might not be seen.
QWidget* QtMessageBox::parentOf() const {
    QWidget* window = window_.data();
    if (window == nullptr || !window->isVisible() || window->isMinimized()) {
        return nullptr;
    }
    return window;
}

void QtMessageBox::inform(BoxIcon icon, const std::string& title, const std::string& text) {
    QMessageBox box(qtIcon(icon), qtText(title), coreText(qtText(text)), QMessageBox::Ok, parentOf());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool QtMessageBox::askYesNo(BoxIcon icon, const std::string& title, const std::string& text, bool defaultYes,
                            bool foreground) {
    QMessageBox box(qtIcon(icon), qtText(title), coreText(qtText(text)), QMessageBox::Yes | QMessageBox::No,
                    parentOf());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(defaultYes ? QMessageBox::Yes : QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    if (foreground) {
        box.setWindowFlag(Qt::WindowStaysOnTopHint);
        box.show();
        box.raise();
        box.activateWindow();
    }
    waiting_.push_back({text, &box});
    const bool yes = box.exec() == QMessageBox::Yes;
    waiting_.pop_back();  // boxes end in the reverse order, each inside the earlier one's event loop
    return yes;
}

void QtMessageBox::withdraw(const std::string& text) {
    for (const Waiting& question : waiting_) {
        if (question.text == text) {
            question.box->button(QMessageBox::No)->click();
        }
    }
}

}  // namespace velmora
