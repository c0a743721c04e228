// The program's icon in the desktop's tray.
#pragma once

#include <QMenu>
#include <QObject>
#include <QString>
#include <QSystemTrayIcon>
#include <functional>

#include "ui/notices.h"

class QAbstractButton;

namespace velmora {

/// Shows in its tip what the server does, offers in its menu what is done most, and shows notices. A click
/// brings the window. On a desktop without a tray it does nothing; where a tray comes later, as at a login,
/// it appears then.
class TrayIcon : public QObject {
    Q_OBJECT

  public:
    struct Actions {
        std::function<void()> show;
        std::function<void()> startStop;
        std::function<void()> quit;
    };
    /// What it needs of the desktop.
    struct Desktop {
        std::function<bool()> hasTray = QSystemTrayIcon::isSystemTrayAvailable;
        std::function<void(QSystemTrayIcon& icon)> appear = [](QSystemTrayIcon& icon) { icon.show(); };
        std::function<void(QSystemTrayIcon& icon, const QString& title, const QString& text,
                           QSystemTrayIcon::MessageIcon sign)>
            notify = [](QSystemTrayIcon& icon, const QString& title, const QString& text,
                        QSystemTrayIcon::MessageIcon sign) { icon.showMessage(title, text, sign); };
    };

    /// `name`: what the program calls itself, in tips and above notices.
    TrayIcon(QString name, const Actions& actions, Desktop desktop);

    /// Whether the desktop has a tray now, so that the icon can be seen.
    bool inTray() const { return desktop_.hasTray(); }
    /// Goes into the tray, and stays as long as this object lives.
    void appear() { desktop_.appear(icon_); }

    /// What the server does, as one line.
    void showStatus(const QString& status);
    /// Gives the menu's entry the caption of the window's button, and whether it can be chosen.
    void mirrorStartStop(const QAbstractButton& button);
    void notify(const Notice& notice);

  private:
    QString name_;
    Desktop desktop_;
    QMenu menu_;
    QAction* startStop_;
    QSystemTrayIcon icon_;
};

}  // namespace velmora
