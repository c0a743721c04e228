// Texts of the core at the window.
#pragma once

#include <QFile>
#include <QString>
#include <string>

#include "base/byte_text.h"

namespace velmora {

/// A Windows-1252 text of the core as the toolkit shows it.
inline QString qtText(const std::string& windows1252) {
    return QString::fromStdString(toUtf8(windows1252));
}

/// A text in the system's narrow encoding, such as a path or a device, as the toolkit shows it.
inline QString qtSystemText(const std::string& text) {
    return QFile::decodeName(text.c_str());
}

/// A path of the toolkit in the system's narrow encoding.
inline std::string systemPath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

/// What a title becomes in a profile: "Velmora (attic)"; the title itself without one.
inline QString titleInProfile(const QString& title, const QString& profile) {
    return profile.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, profile);
}

}  // namespace velmora
