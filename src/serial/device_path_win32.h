// The two forms of a device's name on Windows: the short one and the path that opens it.
#pragma once

#include <string>

namespace velmora {

/// The path that opens a device of any name ("COM12" gives "\\.\COM12"; the bare name finds COM1 to COM9
/// only). A name that begins with "\\" is such a path already and stays.
std::string devicePath(const std::string& device);

/// The name without the prefix of such a path, "\\.\" or "\\?\".
std::string deviceName(const std::string& device);

}  // namespace velmora
