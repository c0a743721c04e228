// Where paths lead once links are followed.
#pragma once

#include <optional>
#include <string>

namespace velmora {

/// What a path leads to when its last component is a link, of any number in a row: the first path that is no
/// link, which need not exist. Throws RunTimeError 64 for a loop.
std::string pathBehindLinks(std::string path);

/// The path, free of links and dots, of what a path names or of what would be made under it: a link that
/// leads to nothing is followed to where a new file would come to lie. Nothing when a folder on the way is
/// missing or may not be passed, or links lead in a circle.
std::optional<std::string> resolvedPosixPath(const std::string& path);

}  // namespace velmora
