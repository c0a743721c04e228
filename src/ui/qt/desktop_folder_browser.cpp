#include "ui/qt/desktop_folder_browser.h"

#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "ui/qt/folder_dialog.h"
#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

/// Not by exec(): some desktops wait for their dialog in a loop of their own, which would go on when the
/// program ends.
QString askOnDesktop(QWidget* owner, const QString& title, const QString& folder) {
    QFileDialog dialog(owner, title, folder);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setSupportedSchemes({QStringLiteral("file")});
    QEventLoop answered;
    QObject::connect(&dialog, &QFileDialog::finished, &answered, &QEventLoop::quit);
    dialog.open();
    answered.exec();
    const QStringList chosen = dialog.result() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
    return chosen.isEmpty() ? QString() : chosen.constFirst();
}

}  // namespace

// The toolkit documents that a dialog of the desktop's is made without any widgets.
bool desktopHasFolderDialog() {
    return QFileDialog().layout() == nullptr;
}

DesktopFolderDialog desktopFolderDialog() {
    return {askOnDesktop, [](QWidget* owner, const QString& title, const QString& fault) {
                QMessageBox::warning(owner, title, fault);
            }};
}

std::string browseOnDesktop(QWidget* owner, const FolderQuestion& question,
                            const DesktopFolderDialog& dialog) {
    const QString title = qtText(question.caption.empty() ? question.prompt : question.caption);
    QString folder = qtSystemText(question.startFolder);
    while (true) {
        const QString chosen = dialog.ask(owner, title, folder);
        if (chosen.isEmpty() || QFileInfo(chosen).isDir()) {
            return systemPath(chosen);
        }
        dialog.tell(owner, title, FolderDialog::faultOf(chosen));
        folder = QFileInfo(chosen).absolutePath();
    }
}

}  // namespace velmora
