// Files handed over to the desktop.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace velmora {

// Paths are in the system's encoding. What cannot be done is returned as a sentence for the user; it is empty
// when the desktop took the file over.

/// Opens a file, or a folder, with the program that the user has for it.
QString openOnDesktop(const std::string& path);
/// Opens an installed page at one of its headings. How much of that reaches the browser is the desktop's
/// affair.
QString openPage(const std::string& path, std::string_view anchor);
/// Shows the folder that a file lies in, with the file selected where the desktop can.
QString showInFolder(const std::string& path);

}  // namespace velmora
