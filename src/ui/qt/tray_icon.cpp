#include "ui/qt/tray_icon.h"

#include <QAbstractButton>
#include <QAction>
#include <utility>

#include "ui/qt/artwork.h"
#include "ui/qt/core_texts.h"
#include "ui/qt/qt_text.h"

namespace velmora {

TrayIcon::TrayIcon(QString name, const Actions& actions, Desktop desktop)
    : name_(std::move(name)), desktop_(std::move(desktop)), icon_(programIcon()) {
    connect(menu_.addAction(tr("S&how")), &QAction::triggered, this, actions.show);
    startStop_ = menu_.addAction(QString());
    connect(startStop_, &QAction::triggered, this, actions.startStop);
    menu_.addSeparator();
    connect(menu_.addAction(tr("&Quit")), &QAction::triggered, this, actions.quit);
    icon_.setContextMenu(&menu_);
    icon_.setToolTip(name_);
    connect(&icon_, &QSystemTrayIcon::messageClicked, this, actions.show);
    connect(&icon_, &QSystemTrayIcon::activated, this,
            [show = actions.show](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger) {
                    show();
                }
            });
}

void TrayIcon::showStatus(const QString& status) {
    icon_.setToolTip(name_ + QStringLiteral(": ") + status);
}

void TrayIcon::mirrorStartStop(const QAbstractButton& button) {
    startStop_->setText(button.text());
    startStop_->setEnabled(button.isEnabled());
}

void TrayIcon::notify(const Notice& notice) {
    if (inTray()) {
        desktop_.notify(icon_, name_, coreText(qtText(notice.text)),
                        notice.fault ? QSystemTrayIcon::Warning : QSystemTrayIcon::Information);
    }
}

}  // namespace velmora
