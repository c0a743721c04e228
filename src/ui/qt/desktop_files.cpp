#include "ui/qt/desktop_files.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include "ui/qt/qt_text.h"

namespace velmora {
namespace {

/// The file manager of Windows selects the file; elsewhere the folder is opened.
bool selectInFolder([[maybe_unused]] const QString& path) {
#ifdef _WIN32
    QProcess explorer;
    explorer.setProgram(QStringLiteral("explorer.exe"));
    explorer.setNativeArguments(QStringLiteral("/select,\"%1\"").arg(QDir::toNativeSeparators(path)));
    return explorer.startDetached();
#else
    return false;
#endif
}

QString tellMissing(const QString& path) {
    return QCoreApplication::translate("DesktopFiles", "%1 is not there any more.")
        .arg(QDir::toNativeSeparators(path));
}

QString handOver(const QString& path, const QString& anchor = {}) {
    QUrl place = QUrl::fromLocalFile(path);
    if (!anchor.isEmpty()) {
        place.setFragment(anchor);
    }
    if (QDesktopServices::openUrl(place)) {
        return {};
    }
    return QCoreApplication::translate("DesktopFiles", "No program opens %1.")
        .arg(QDir::toNativeSeparators(path));
}

}  // namespace

QString openOnDesktop(const std::string& path) {
    const QString name = qtSystemText(path);
    return QFileInfo::exists(name) ? handOver(name) : tellMissing(name);
}

QString openPage(const std::string& path, std::string_view anchor) {
    return handOver(qtSystemText(path),
                    QString::fromLatin1(anchor.data(), static_cast<qsizetype>(anchor.size())));
}

QString showInFolder(const std::string& path) {
    const QFileInfo file(qtSystemText(path));
    if (file.exists() && selectInFolder(file.filePath())) {
        return {};
    }
    const QString folder = file.path();
    return QFileInfo(folder).isDir() ? handOver(folder) : tellMissing(folder);
}

}  // namespace velmora
