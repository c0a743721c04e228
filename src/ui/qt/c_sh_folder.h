// Choosing a folder.
#pragma once

#include <QObject>
#include <QPointer>
#include <optional>
#include <string>

#include "ui/folder_choice.h"

class QFileDialog;

namespace velmora {

/// Asks for a folder. Texts are Windows-1252 bytes, paths in the system's encoding.
class cSHFolder : public QObject {
    Q_OBJECT

  public:
    explicit cSHFolder(QObject* parent = nullptr) : QObject(parent) {}

    /// What the last BrowseForFolder returned.
    const std::string& DisplayName() const { return displayName_; }
    /// Selected when the dialog opens; an open dialog goes there at once.
    void setDefaultPath(const std::string& path);
    /// Applied at opening, or at once when the dialog is open.
    void setCaption(const std::string& caption);
    /// The dialog while it is open, otherwise null.
    QWidget* hWnd() const;
    /// Centres the open dialog on its screen.
    void CenterDialog();

    /// Asks, modally for the owner, with the prompt above the folders. Empty when the user cancels.
    std::string BrowseForFolder(QWidget* owner, const std::optional<std::string>& prompt = std::nullopt);

  Q_SIGNALS:
    void Initialized();
    void SelectionChanged();

  private:
    std::string displayName_;
    std::string defaultPath_;
    std::string caption_;
    QPointer<QFileDialog> dialog_;
};

/// The folder question over cSHFolder, for chooseDownloadFolder. The owner may be null.
BrowseForFolder folderBrowser(QWidget* owner);

}  // namespace velmora
