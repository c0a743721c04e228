#include "ui/qt/c_sh_folder.h"
#include "ui/qt/native_folder_browser.h"

namespace velmora {

std::string browseForFolderOver(QWidget& window, const FolderQuestion& question) {
    return folderBrowser(&window)(question);
}

}  // namespace velmora
