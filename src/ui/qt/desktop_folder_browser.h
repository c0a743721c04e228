// The desktop's own folder dialog.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "ui/folder_choice.h"

namespace velmora {

/// What asks for a folder and tells of a fault; the owner may be null. Tests stand in for both.
struct DesktopFolderDialog {
    /// Asks once, beginning at `folder`; empty when the user cancels.
    std::function<QString(QWidget* owner, const QString& title, const QString& folder)> ask;
    /// Tells the user, who is asked again then.
    std::function<void(QWidget* owner, const QString& title, const QString& fault)> tell;
};

/// Whether this desktop has a folder dialog of its own.
bool desktopHasFolderDialog();

/// The desktop's dialog and a message box.
DesktopFolderDialog desktopFolderDialog();

/// The folder question in the desktop's dialog, which has no room for the prompt and does not check what was
/// typed: that it is no folder is told afterwards, and asked again beside it. Empty when the user cancels.
std::string browseOnDesktop(QWidget* owner, const FolderQuestion& question,
                            const DesktopFolderDialog& dialog);

}  // namespace velmora
