// Files that are written as a whole or not at all.
#pragma once

#include <string>
#include <string_view>

#include "base/files.h"
#include "base/path_rules.h"

namespace velmora {

/// Puts the bytes in the place of the file: into a new file beside it (where a link
/// leads to), which then takes its name. Until that
/// last step, and after any failure, the old file (or none) is there. Throws what the file layer throws.
void writeWholeFile(Files& files, const PathRules& rules, const std::string& path, std::string_view bytes);

/// Whether writeWholeFile could write there: throws the RunTimeError that it would meet, and 75 where
/// something else than a file has the name. Neither the file nor the folder is changed.
void checkWritable(Files& files, const PathRules& rules, const std::string& path);

}  // namespace velmora
