// A desktop's tray that a test gives and takes away, and that remembers the notices.
#pragma once

#include <QStringList>
#include <QSystemTrayIcon>

#include "ui/qt/tray_icon.h"

namespace velmora::test {

/// Must outlive whoever is given desktop().
struct RecordingTray {
    TrayIcon::Desktop desktop() {
        return {
            [this] { return there; }, [this](QSystemTrayIcon& appearing) { icon = &appearing; },
            [this](QSystemTrayIcon&, const QString& title, const QString& text,
                   QSystemTrayIcon::MessageIcon sign) {
                titles.append(title);
                notices.append((sign == QSystemTrayIcon::Warning ? QStringLiteral("! ") : QString()) + text);
            }};
    }

    bool there = true;
    QSystemTrayIcon* icon = nullptr;  ///< that appeared last
    QStringList titles;
    QStringList notices;  ///< with "! " before faults
};

}  // namespace velmora::test
