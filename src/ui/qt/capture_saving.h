// Captures in files of the user's choice.
#pragma once

#include <QString>
#include <QWidget>
#include <string>

namespace velmora {

/// Writes the bytes of a capture. A failure is shown in a box over the window and leaves the file that was
/// there.
bool saveCapture(QWidget& window, const QString& path, const std::string& bytes);
/// Asks for a file until the capture is in it or the user gives up; its path, empty when it is in none.
QString askAndSaveCapture(QWidget& window, const std::string& bytes);

}  // namespace velmora
