#include "ui/qt/c_sh_folder.h"

#include <QFile>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QTimer>

#include "base/byte_text.h"

namespace velmora {

namespace {

QString shown(const std::string& text) {
    return QString::fromStdString(toUtf8(text));
}

// The toolkit's dialog has no place for a prompt: its rows move down by one.
void putAbove(QFileDialog& dialog, const QString& prompt) {
    auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
    if (!grid) {
        return;
    }
    struct Cell {
        QLayoutItem* item;
        int row, column, rows, columns;
    };
    QList<Cell> cells;
    while (grid->count() > 0) {
        Cell cell{};
        grid->getItemPosition(0, &cell.row, &cell.column, &cell.rows, &cell.columns);
        cell.item = grid->takeAt(0);
        cells.append(cell);
    }
    auto* label = new QLabel(prompt);
    label->setObjectName("lblPrompt");
    grid->addWidget(label, 0, 0, 1, 3);
    for (const Cell& cell : cells) {
        grid->addItem(cell.item, cell.row + 1, cell.column, cell.rows, cell.columns);
    }
}

}  // namespace

void cSHFolder::setDefaultPath(const std::string& path) {
    defaultPath_ = path;
    if (dialog_) {
        dialog_->setDirectory(QFile::decodeName(path.c_str()));
    }
}

void cSHFolder::setCaption(const std::string& caption) {
    caption_ = caption;
    if (dialog_) {
        dialog_->setWindowTitle(shown(caption));
    }
}

QWidget* cSHFolder::hWnd() const {
    return dialog_;
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

std::string cSHFolder::BrowseForFolder(QWidget* owner, const std::optional<std::string>& prompt) {
    displayName_.clear();
    QFileDialog dialog(owner);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("OK"));
    putAbove(dialog, shown(prompt.value_or(FolderQuestion().prompt)));
    dialog_ = &dialog;
    if (!defaultPath_.empty()) {
        setDefaultPath(defaultPath_);
    }
    if (!caption_.empty()) {
        setCaption(caption_);
    }
    connect(&dialog, &QFileDialog::currentChanged, this, &cSHFolder::SelectionChanged);
    QTimer::singleShot(0, &dialog, [this] { Q_EMIT Initialized(); });
    const bool accepted = dialog.exec() == QDialog::Accepted;
    dialog_ = nullptr;
    if (accepted && !dialog.selectedFiles().isEmpty()) {
        displayName_ = QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
    }
    return displayName_;
}

BrowseForFolder folderBrowser(QWidget* owner) {
    return [owner](const FolderQuestion& question) {
        cSHFolder folder;
        folder.setCaption(question.caption);
        folder.setDefaultPath(question.startFolder);
        return folder.BrowseForFolder(owner, question.prompt);
    };
}

}  // namespace velmora
