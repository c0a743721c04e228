#include "ui/qt/c_sh_folder.h"

#include <QDir>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <array>

#include "ui/qt/folder_dialog.h"
#include "ui/qt/help_key.h"
#include "ui/qt/qt_text.h"

namespace velmora {

std::string specialFolder(int number) {
    struct Row {
        int number;
        QStandardPaths::StandardLocation place;
    };
    static constexpr auto kRows = std::to_array<Row>({
        {5, QStandardPaths::DocumentsLocation},
        {13, QStandardPaths::MusicLocation},
        {14, QStandardPaths::MoviesLocation},
        {16, QStandardPaths::DesktopLocation},
        {20, QStandardPaths::FontsLocation},
        {26, QStandardPaths::GenericConfigLocation},
        {28, QStandardPaths::GenericDataLocation},
        {39, QStandardPaths::PicturesLocation},
        {40, QStandardPaths::HomeLocation},
    });
    constexpr int kDrives = 17;
    if (number == kDrives) {
        return systemPath(QDir::rootPath());
    }
    for (const Row& row : kRows) {
        if (row.number == number) {
            return systemPath(QStandardPaths::writableLocation(row.place));
        }
    }
    return {};
}

void cSHFolder::setDefaultPath(const std::string& path) {
    defaultPath_ = path;
    if (dialog_) {
        dialog_->select(qtSystemText(path));
    }
}

void cSHFolder::setCaption(const std::string& caption) {
    caption_ = caption;
    if (dialog_) {
        dialog_->setWindowTitle(qtText(caption));
    }
}

void cSHFolder::setStatusText(const std::string& text) {
    statusText_ = text;
    if (dialog_) {
        dialog_->setStatusText(qtText(text));
    }
}

void cSHFolder::setOKEnabled(bool on) {
    if (dialog_) {
        dialog_->setOkEnabled(on);
    }
}

QWidget* cSHFolder::hWnd() const {
    return dialog_.data();
}

void cSHFolder::CenterDialog() {
    QWidget* dialog = dialog_.data();
    if (!dialog) {
        return;
    }
    const QRect screen = dialog->screen()->geometry();
    const QSize size = dialog->frameGeometry().size();
    dialog->move(screen.left() + (screen.width() - size.width()) / 2,
                 screen.top() + (screen.height() - size.height()) / 2);
}

std::string cSHFolder::BrowseForFolder(QWidget* owner, const std::optional<std::string>& prompt, int root) {
    displayName_.clear();
    FolderDialog::Options options;
    options.prompt = qtText(prompt.value_or(FolderQuestion().prompt));
    options.root = qtSystemText(specialFolder(root));
    options.statusLine = statusTextArea_;
    options.files = includeFiles_;
    options.pathBox = editBox_;
    options.resizable = newDialog_;
    FolderDialog dialog(options, owner);
    dialog_ = &dialog;
    if (!defaultPath_.empty()) {
        setDefaultPath(defaultPath_);
    }
    setStatusText(statusText_);
    const std::string special = specialFolder(defaultPidl_.value_or(0));
    if (!special.empty()) {
        dialog.select(qtSystemText(special));
    }
    if (!caption_.empty()) {
        setCaption(caption_);
    }
    if (help_) {
        onHelpKey(dialog, help_);
    }
    connect(&dialog, &FolderDialog::selectionMoved, this, &cSHFolder::SelectionChanged);
    connect(&dialog, &FolderDialog::validationFailed, this, &cSHFolder::ValidationFailed);
    QTimer::singleShot(0, &dialog, [this] { Q_EMIT Initialized(); });
    const bool accepted = dialog.exec() == QDialog::Accepted;
    dialog_ = nullptr;
    if (accepted) {
        displayName_ = systemPath(dialog.chosenPath());
    }
    return displayName_;
}

BrowseForFolder folderBrowser(QWidget* owner) {
    return [owner](const FolderQuestion& question) {
        cSHFolder folder;
        folder.setCaption(question.caption);
        folder.setDefaultPath(question.startFolder);
        folder.setNewDialog(true);
        folder.setEditBox(true);
        folder.setHelp(question.help);
        return folder.BrowseForFolder(owner, question.prompt);
    };
}

}  // namespace velmora
