// Folders of the command line.
#pragma once

#include <string>

#include "arguments/usage_error.h"
#include "base/files.h"
#include "base/path_rules.h"
#include "startup/run_overrides.h"

namespace velmora {

/// Throws UsageError when the command line names a folder, or a file in one, that is not there: nothing is
/// made for a name that may be mistyped.
inline void requireNamedFolders(const Files& files, const PathRules& rules, const RunOverrides& overrides) {
    const auto require = [&](const char* option, const std::string& folder) {
        if (!files.folderExists(folder)) {
            throw UsageError(std::string(option) + ": " + folder + " is no folder");
        }
    };
    if (overrides.configPath) {
        require("--config", rules.parentFolder(rules.absolute(*overrides.configPath)));
    }
    if (overrides.folder) {
        require("--folder", rules.absolute(*overrides.folder));
    }
}

}  // namespace velmora
