#include "ui/win32/c_sh_folder.h"

#include <shlobj.h>

#include <array>

#include "ui/win32/item_lists.h"
#include "ui/win32/sh_folder_callback.h"

namespace velmora {

namespace {

/// The new dialog needs OLE on its thread. The toolkit has begun it already in a program with windows.
class OleScope {
  public:
    OleScope() : begun_(SUCCEEDED(OleInitialize(nullptr))) {}
    ~OleScope() {
        if (begun_) {
            OleUninitialize();
        }
    }
    OleScope(const OleScope&) = delete;
    OleScope& operator=(const OleScope&) = delete;

  private:
    bool begun_;
};

/// A text as the lParam of a message to the dialog.
LPARAM textParameter(const std::string& text) {
    return reinterpret_cast<LPARAM>(text.c_str());
}

}  // namespace

void cSHFolder::setDefaultPath(const std::string& path) {
    defaultPath_ = path;
    if (dialog_ != nullptr) {
        SendMessageA(dialog_, BFFM_SETSELECTIONA, TRUE, textParameter(defaultPath_));
    }
}

void cSHFolder::setCaption(const std::string& caption) {
    caption_ = caption;
    if (dialog_ != nullptr) {
        SetWindowTextA(dialog_, caption_.c_str());
    }
}

void cSHFolder::setStatusText(const std::string& text) {
    statusText_ = text;
    if (dialog_ != nullptr) {
        SendMessageA(dialog_, BFFM_SETSTATUSTEXTA, 0, textParameter(statusText_));
    }
}

void cSHFolder::setOKEnabled(bool on) {
    if (dialog_ != nullptr) {
        SendMessageA(dialog_, BFFM_ENABLEOK, 0, on ? TRUE : FALSE);
    }
}

void cSHFolder::CenterDialog() {
    RECT frame;
    if (dialog_ == nullptr || GetWindowRect(dialog_, &frame) == FALSE) {
        return;
    }
    const int left = (GetSystemMetrics(SM_CXSCREEN) - (frame.right - frame.left)) / 2;
    const int top = (GetSystemMetrics(SM_CYSCREEN) - (frame.bottom - frame.top)) / 2;
    SetWindowPos(dialog_, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void cSHFolder::Cancel() {
    cancelled_ = true;
    if (dialog_ != nullptr) {
        PostMessageA(dialog_, WM_COMMAND, IDCANCEL, 0);
    }
}

std::string cSHFolder::BrowseForFolder(HWND owner, const std::optional<std::string>& prompt, int root) {
    displayName_.clear();
    choiceHasNoName_ = false;
    cancelled_ = false;
    const OleScope ole;
    const ItemList rootItem = specialFolderItem(owner, root);
    const std::string title = prompt.value_or(FolderQuestion().prompt);
    std::array<char, MAX_PATH> name{};
    BROWSEINFOA info{};
    info.hwndOwner = owner;
    info.pidlRoot = rootItem.get();
    info.pszDisplayName = name.data();
    info.lpszTitle = title.c_str();
    info.ulFlags = BIF_RETURNONLYFSDIRS | (newDialog_ ? BIF_NEWDIALOGSTYLE : 0) |
                   (statusTextArea_ ? BIF_STATUSTEXT : 0) | (includeFiles_ ? BIF_BROWSEINCLUDEFILES : 0) |
                   (editBox_ ? BIF_EDITBOX | BIF_VALIDATE | BIF_DONTGOBELOWDOMAIN : 0);
    info.lpfn = shFolderCallback;
    info.lParam = reinterpret_cast<LPARAM>(this);
    const ItemList chosen(SHBrowseForFolderA(&info));
    dialog_ = nullptr;
    if (chosen) {
        const std::optional<std::string> path = pathOfItem(chosen.get());
        choiceHasNoName_ = !path;
        displayName_ = path.value_or(std::string());
    }
    return displayName_;
}

void cSHFolder::dialogOpened(HWND dialog) {
    dialog_ = dialog;
    if (!defaultPath_.empty()) {
        setDefaultPath(defaultPath_);
    }
    if (!statusText_.empty()) {
        setStatusText(statusText_);
    }
    if (defaultPidl_) {
        if (const ItemList item = specialFolderItem(dialog, *defaultPidl_)) {
            SendMessageA(dialog, BFFM_SETSELECTIONA, FALSE, reinterpret_cast<LPARAM>(item.get()));
        }
    }
    if (!caption_.empty()) {
        setCaption(caption_);
    }
    if (Initialized) {
        Initialized();
    }
}

void cSHFolder::selectionMoved() {
    if (SelectionChanged) {
        SelectionChanged();
    }
}

void cSHFolder::validationFailed(const std::string& typed) {
    if (ValidationFailed) {
        ValidationFailed(typed);
    }
}

BrowseForFolder folderBrowser(HWND owner, cSHFolder& folder) {
    return [owner, &folder](const FolderQuestion& question) {
        folder.setCaption(question.caption);
        folder.setDefaultPath(question.startFolder);
        folder.setNewDialog(true);
        folder.setEditBox(true);
        folder.ValidationFailed = [&folder, caption = question.caption](const std::string& typed) {
            MessageBoxA(folder.hWnd(), (typed + " is no folder to choose").c_str(), caption.c_str(),
                        MB_OK | MB_ICONEXCLAMATION);
        };
        std::string answer = folder.BrowseForFolder(owner, question.prompt);
        while (folder.choiceHasNoName()) {
            MessageBoxA(owner,
                        "The folder's name has letters that files cannot be opened with here.\n"
                        "Choose another folder or give it another name.",
                        question.caption.c_str(), MB_OK | MB_ICONEXCLAMATION);
            // The owner may have been closed meanwhile; another dialog would keep the program alive.
            if (folder.cancelled()) {
                return std::string();
            }
            answer = folder.BrowseForFolder(owner, question.prompt);
        }
        return answer;
    };
}

}  // namespace velmora
