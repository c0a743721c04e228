// Choosing a folder.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "ui/folder_choice.h"

namespace velmora {

class FolderDialog;

/// The path of a special folder by the desktop shell's number: 5 the documents, 40 the home folder and so
/// on. Empty for 0, the whole desktop, and for a number that stands for no folder here.
std::string specialFolder(int number);

/// Asks for a folder. Texts are Windows-1252 bytes, paths in the system's encoding.
class cSHFolder : public QObject {
    Q_OBJECT

  public:
    explicit cSHFolder(QObject* parent = nullptr) : QObject(parent) {}

    /// What the last BrowseForFolder returned.
    const std::string& DisplayName() const { return displayName_; }
    /// Selected when the dialog opens; an open dialog goes there at once.
    void setDefaultPath(const std::string& path);
    /// The special folder (see specialFolder) selected when the dialog opens, in place of DefaultPath. A
    /// number that stands for no folder changes nothing.
    void setDefaultPIDL(int number) { defaultPidl_ = number; }
    /// Applied at opening, or at once when the dialog is open.
    void setCaption(const std::string& caption);
    /// The status line's text, seen when StatusTextArea is set. Applied at opening or at once.
    void setStatusText(const std::string& text);
    /// Gives the dialog a status line.
    void setStatusTextArea(bool on) { statusTextArea_ = on; }
    /// Lets the user change the dialog's size.
    void setNewDialog(bool on) { newDialog_ = on; }
    /// Shows files too and lets one be chosen.
    void setIncludeFiles(bool on) { includeFiles_ = on; }
    /// Gives the dialog a box for typing a path. What names no folder raises ValidationFailed and leaves the
    /// dialog open, with the reason below the folders.
    void setEditBox(bool on) { editBox_ = on; }
    /// What F1 does in a dialog that opens later.
    void setHelp(std::function<void()> help) { help_ = std::move(help); }
    /// Enables or disables OK while the dialog is open; each dialog opens with OK as its selection has it.
    void setOKEnabled(bool on);
    /// The dialog while it is open, otherwise null.
    QWidget* hWnd() const;
    /// Centres the open dialog on its screen.
    void CenterDialog();

    /// Asks, modally for the owner, with the prompt above the folders. Nothing outside the special folder
    /// `root` can be chosen; 0 allows everything. Empty when the user cancels.
    std::string BrowseForFolder(QWidget* owner, const std::optional<std::string>& prompt = std::nullopt,
                                int root = 0);

  Q_SIGNALS:
    void Initialized();
    void SelectionChanged();
    void ValidationFailed();

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
    std::function<void()> help_;
    QPointer<FolderDialog> dialog_;
};

/// The folder question over cSHFolder, for chooseDownloadFolder. The owner may be null.
BrowseForFolder folderBrowser(QWidget* owner);

}  // namespace velmora
