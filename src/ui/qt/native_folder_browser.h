// The folder choice of the system that this program is built for.
#pragma once

#include <QWidget>
#include <string>

#include "ui/folder_choice.h"

namespace velmora {

/// Asks for a folder over `window`: the shell's dialog on Windows, elsewhere the desktop's where it has one
/// and otherwise our own. Empty when the user cancels or the window is closed meanwhile.
std::string browseForFolderOver(QWidget& window, const FolderQuestion& question);

}  // namespace velmora
