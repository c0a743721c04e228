// New contents for a file, whole or not at all.
#pragma once

#include <string>
#include <string_view>

#include "base/files.h"
#include "base/path_rules.h"

namespace velmora {

/// Gives `path` these contents in one step: they go to a temporary file in the same folder, which is closed
/// and then renamed over it, so that a failure at any point leaves the old file, and no other, behind. Makes
/// the file when there is none. Throws the RunTimeError of the step that failed (read-only folder 75, full
/// disk 61, missing folder 76, a folder in the file's place 75).
void replaceContents(Files& files, const PathRules& rules, const std::string& path,
                     std::string_view contents);

}  // namespace velmora
