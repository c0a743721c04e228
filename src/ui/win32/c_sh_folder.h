// Choosing a folder in the shell's own dialog.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "ui/folder_choice.h"

struct HWND__;

namespace velmora {

/// HWND, declared without the system's headers: they turn names of ours, such as MessageBox, into others.
using WindowHandle = HWND__*;

/// Asks for a folder with SHBrowseForFolderA. Texts and paths are in the ANSI code page. One BrowseForFolder
/// at a time; the object stays where it is while it runs, since the dialog points to it.
class cSHFolder {
  public:
    cSHFolder() = default;
    cSHFolder(const cSHFolder&) = delete;
    cSHFolder& operator=(const cSHFolder&) = delete;

    /// The dialog is open and has its settings. This and the others must not throw: the shell's frames lie
    /// between them and the caller.
    std::function<void()> Initialized;
    /// The selection moved.
    std::function<void()> SelectionChanged;
    /// The edit box named no folder that may be chosen; `typed` is what it held. The dialog stays open.
    std::function<void(const std::string& typed)> ValidationFailed;

    /// What the last BrowseForFolder returned.
    const std::string& DisplayName() const { return displayName_; }
    /// Whether the last BrowseForFolder was answered with a folder that no path in the ANSI code page names;
    /// DisplayName is empty then.
    bool choiceHasNoName() const { return choiceHasNoName_; }
    /// Selected when the dialog opens; an open dialog goes there at once.
    void setDefaultPath(const std::string& path);
    /// The special folder (CSIDL number) selected when the dialog opens, in place of DefaultPath. A number
    /// that stands for no folder changes nothing.
    void setDefaultPIDL(int number) { defaultPidl_ = number; }
    /// Applied at opening, or at once when the dialog is open.
    void setCaption(const std::string& caption);
    /// The status line's text, applied at opening or at once. Seen when StatusTextArea is set and NewDialog
    /// is not: the shell's new dialog has no status line.
    void setStatusText(const std::string& text);
    /// Gives the dialog a status line (BIF_STATUSTEXT).
    void setStatusTextArea(bool on) { statusTextArea_ = on; }
    /// The resizable dialog (BIF_NEWDIALOGSTYLE).
    void setNewDialog(bool on) { newDialog_ = on; }
    /// Shows files too and lets one be chosen (BIF_BROWSEINCLUDEFILES).
    void setIncludeFiles(bool on) { includeFiles_ = on; }
    /// Gives the dialog a box for typing a name, which is checked, and keeps it to the local network's domain
    /// (BIF_EDITBOX, BIF_VALIDATE, BIF_DONTGOBELOWDOMAIN).
    void setEditBox(bool on) { editBox_ = on; }
    /// Enables or disables OK while the dialog is open; moving the selection has the shell decide anew.
    void setOKEnabled(bool on);
    /// The dialog while it is open, otherwise null.
    WindowHandle hWnd() const { return dialog_; }
    /// Centres the open dialog on the primary screen; its size and its place among the windows stay.
    void CenterDialog();
    /// Closes the open dialog as its Cancel button does, as soon as it reads its messages.
    void Cancel();
    /// Whether Cancel was called since the dialog was last opened, be it before or after the user's answer.
    bool cancelled() const { return cancelled_; }

    /// Asks, modally for the owner (may be null), with the prompt above the folders. Nothing outside the
    /// special folder `root` (CSIDL number) can be chosen; 0, the desktop, and a number that stands for no
    /// folder allow everything. Empty when the user cancels.
    std::string BrowseForFolder(WindowHandle owner, const std::optional<std::string>& prompt = std::nullopt,
                                int root = 0);

    /// What the callback of SHFolder_callback hands on.
    void dialogOpened(WindowHandle dialog);
    void selectionMoved();
    void validationFailed(const std::string& typed);

  private:
    std::string displayName_;
    std::string defaultPath_;
    std::optional<int> defaultPidl_;
    std::string caption_;
    std::string statusText_;
    bool statusTextArea_ = false;
    bool newDialog_ = false;
    bool includeFiles_ = false;
    bool editBox_ = false;
    bool choiceHasNoName_ = false;
    bool cancelled_ = false;
    WindowHandle dialog_ = nullptr;
};

/// The folder question over `folder`, for chooseDownloadFolder. The owner may be null; `folder` must outlive
/// what is returned. A wrong name in the edit box and a choice without a name are told in message boxes.
BrowseForFolder folderBrowser(WindowHandle owner, cSHFolder& folder);

}  // namespace velmora
