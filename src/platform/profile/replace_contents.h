// New contents for a file, whole or not at all.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/files.h"
#include "base/path_rules.h"

namespace velmora {

/// Changes a closed file in place and tells whether the result is worth keeping.
using FileEdit = std::function<bool(const std::string& path)>;

/// Gives `path` these contents in one step: they go to a temporary file in the same folder (where a link
/// leads to), which is closed and then renamed over it, so that a failure at any point leaves the old file,
/// and no other, behind. Makes the file when there is none. Throws the RunTimeError of the step that failed
/// (read-only folder 75, full disk 61, missing folder 76, a folder in the file's place 75).
///
/// With an `edit` the temporary file is what it left; when it answers false the old file stays.
void replaceContents(Files& files, const PathRules& rules, const std::string& path, std::string_view contents,
                     const FileEdit& edit = {});

}  // namespace velmora
