// The display's two lines as one readable line.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Joins two display lines, trimmed, into a sentence or two: "Sending directory", "Server Offline. Click
/// Start!". A full stop comes between them unless line 1 ends a sentence itself or line 2 goes on with a
/// small letter. Empty when both are blank.
std::string joinDisplayLines(std::string_view line1, std::string_view line2);

/// What happens to which file: "Downloading file: Memo.odb".
std::string joinFileName(std::string_view activity, std::string_view fileName);

}  // namespace velmora
