#include "ui/folder_choice.h"

#include "base/run_time_error.h"
#include "server/caption.h"

namespace velmora {

namespace {

/// A root keeps its separator: "/" is nothing without it, and "C:" is the current folder of the drive.
std::string withoutFinalSeparator(std::string path) {
    const bool isRoot = path.size() == 1 || (path.size() == 3 && path[1] == ':');
    if (!path.empty() && !isRoot && (path.back() == '/' || path.back() == '\\')) {
        path.pop_back();
    }
    return path;
}

}  // namespace

void chooseDownloadFolder(const BrowseForFolder& browse, const Strings& strings, TransferSettings& transfer,
                          SettingsStore& settings, MainView& view, MessageBox& box) {
    FolderQuestion question;
    question.caption = std::string(kProgramName) + " - " + strings.FolderCaption;
    question.prompt = strings.DownloadPath;
    question.startFolder = transfer.DownloadPath;
    const std::string folder = withoutFinalSeparator(browse(question));
    if (!folder.empty()) {
        transfer.DownloadPath = folder;
        try {
            settings.put("Settings", "DownloadPath", folder);
        } catch (const RunTimeError& error) {
            box.inform(BoxIcon::Exclamation, kProgramName,
                       std::string("The folder is used, but could not be saved for the next start: ") +
                           error.what());
        }
    }
    view.setFocus(MainButton::StartStop);
}

}  // namespace velmora
