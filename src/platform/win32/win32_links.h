// Where paths lead once links are followed.
#pragma once

#include <optional>
#include <string>

namespace velmora {

/// The path of the file itself where the last component of a path is a link, by GetFinalPathNameByHandleW;
/// any other path as it is, and so that of a link that leads nowhere. Throws RunTimeError 64 when the file
/// has no narrow path.
std::string pathBehindWin32Links(const std::string& path);

/// The path, free of links and dots and with the letters as stored, of what a path names, or of what would be
/// made under it in a folder that is there. Nothing when that cannot be told, as of a link that leads to
/// nothing or a path that has no form in the ANSI code page.
std::optional<std::string> resolvedWin32Path(const std::string& path);

}  // namespace velmora
