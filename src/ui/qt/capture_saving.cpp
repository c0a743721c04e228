#include "ui/qt/capture_saving.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QSaveFile>

namespace velmora {

bool saveCapture(QWidget& window, const QString& path, const std::string& bytes) {
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes.data(), static_cast<qint64>(bytes.size())) >= 0 &&
        file.commit()) {
        return true;
    }
    QMessageBox box(
        QMessageBox::Critical, window.windowTitle(),
        QCoreApplication::translate(
            "CaptureSaving", "The capture could not be saved in\n%1\n\n%2\n\nChoose another folder or name.")
            .arg(QDir::toNativeSeparators(path), file.errorString()),
        QMessageBox::Ok, &window);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return false;
}

QString askAndSaveCapture(QWidget& window, const std::string& bytes) {
    QFileDialog dialog(&window, QCoreApplication::translate("CaptureSaving", "Save capture"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({QCoreApplication::translate("CaptureSaving", "Captures (*.pcapng)"),
                           QCoreApplication::translate("CaptureSaving", "All files (*)")});
    dialog.setDefaultSuffix(QStringLiteral("pcapng"));
    while (dialog.exec() == QDialog::Accepted) {
        QString path = dialog.selectedFiles().constFirst();
        if (saveCapture(window, path, bytes)) {
            return path;
        }
    }
    return {};
}

}  // namespace velmora
