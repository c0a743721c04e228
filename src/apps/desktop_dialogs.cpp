#include "apps/desktop_dialogs.h"

#include <QFile>
#include <QFileDialog>

#include "ui/qt/qt_text.h"

namespace velmora {

DesktopDialogs::DesktopDialogs(const Clock& /*clock*/) {}

void DesktopDialogs::runSetup(QWidget& /*window*/, SerialPort& /*port*/, ServerOptions& /*options*/,
                              TransferSettings& /*transfer*/, const SetupModel::Probe& /*probe*/) {}

std::string DesktopDialogs::browseForFolder(QWidget& window, const FolderQuestion& question) {
    const QString folder =
        QFileDialog::getExistingDirectory(&window, qtText(question.caption),
                                          QFile::decodeName(QByteArray::fromStdString(question.startFolder)));
    return QFile::encodeName(folder).toStdString();
}

void DesktopDialogs::toggleDebugWindow() {}

void DesktopDialogs::closeDebugWindow() {}

}  // namespace velmora
