// Which file a start reads its settings from, and which folder it serves.
#pragma once

#include <string>

#include "base/files.h"
#include "base/path_rules.h"
#include "startup/run_overrides.h"

namespace velmora {

/// The path of the configuration file, which need not be there.
std::string configurationPath(const PathRules& rules, const std::string& applicationData,
                              const RunOverrides& overrides);

/// Whether the file is there and is none that a start writes anew.
bool isConfiguration(const Files& files, const std::string& path);

/// The folder that is served.
struct DownloadFolder {
    std::string path;      ///< it need not be there when it is the usual one
    std::string missing;   ///< the one that was named and is not there; else empty
    bool isUsual = false;  ///< the one in the user's documents
};

/// `named` is what the configuration file says.
DownloadFolder downloadFolder(const Files& files, const PathRules& rules, const std::string& documents,
                              const std::string& named, const RunOverrides& overrides);

}  // namespace velmora
