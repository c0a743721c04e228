#include "ui/qt/c_sh_folder.h"
#include "ui/qt/desktop_folder_browser.h"
#include "ui/qt/native_folder_browser.h"

namespace velmora {

std::string browseForFolderOver(QWidget& window, const FolderQuestion& question) {
    return desktopHasFolderDialog() ? browseOnDesktop(&window, question, desktopFolderDialog())
                                    : folderBrowser(&window)(question);
}

}  // namespace velmora
