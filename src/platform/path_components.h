// What the path rules of all systems have in common.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Whether a name holds a code below 32, the zero byte included.
bool holdsControlCode(std::string_view name);

/// Folder and name with one separator between them; the name itself if the folder is empty. `separators` are
/// the characters that separate components, the first is the one written.
std::string joinWithOne(std::string_view separators, std::string_view folder, std::string_view name);

/// The components of the part of a path after its root, separated by the first of `separators`, without
/// empty ones and with "." and ".." resolved; ".." at the root stays there.
std::string resolvedComponents(std::string_view separators, std::string_view path);

}  // namespace velmora
