#include "startup/start_paths.h"

#include "base/profile_name.h"
#include "startup/default_ini.h"

namespace velmora {
namespace {

/// A folder as it is kept: without one final separator. A backslash goes on every system, since the same file
/// may be used on several.
std::string withoutFinalSeparator(std::string path, char separator) {
    if (path.size() > 1 && (path.back() == '\\' || path.back() == separator)) {
        path.pop_back();
    }
    return path;
}

}  // namespace

std::string configurationPath(const PathRules& rules, const std::string& applicationData,
                              const RunOverrides& overrides) {
    const std::string name = overrides.profile ? profiledName("Velmora", *overrides.profile) : "Velmora";
    return rules.absolute(overrides.configPath.value_or(rules.join(applicationData, name + ".ini")));
}

bool isConfiguration(const Files& files, const std::string& path) {
    return files.fileExists(path) && files.fileSize(path) >= kSmallestIni;
}

DownloadFolder downloadFolder(const Files& files, const PathRules& rules, const std::string& documents,
                              const std::string& named, const RunOverrides& overrides) {
    const std::string given = overrides.folder ? rules.absolute(*overrides.folder) : named;
    const std::string folder = withoutFinalSeparator(given, rules.separator());
    if (!folder.empty() && files.folderExists(folder)) {
        return {folder, {}, false};
    }
    return {rules.join(documents, "Psion Files"), folder, true};
}

}  // namespace velmora
