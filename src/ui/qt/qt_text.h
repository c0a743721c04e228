// Texts of the core at the window.
#pragma once

#include <QString>
#include <string>

#include "base/byte_text.h"

namespace velmora {

/// A Windows-1252 text of the core as the toolkit shows it.
inline QString qtText(const std::string& windows1252) {
    return QString::fromStdString(toUtf8(windows1252));
}

}  // namespace velmora
