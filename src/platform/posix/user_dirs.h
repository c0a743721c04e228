// The file user-dirs.dirs, in which desktops keep the names of the user's folders.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// The value of a key such as "XDG_DOCUMENTS_DIR" in a user-dirs.dirs file, without a final
/// separator. A value stands in double quotes and is an absolute path or begins with $HOME, for which `home`
/// is put; "\" takes the next character as it is. Lines of any other form are passed over, the last good one
/// counts. Nothing when there is none.
std::optional<std::string> userDir(std::istream& file, std::string_view key, const std::string& home);

}  // namespace velmora
