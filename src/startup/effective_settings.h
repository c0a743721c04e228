// The settings that a run uses, and where each comes from.
#pragma once

#include <string>
#include <vector>

#include "base/files.h"
#include "base/path_rules.h"
#include "startup/ini_file.h"
#include "startup/run_overrides.h"

namespace velmora {

/// A setting with its value as the configuration file would have it; a folder is in the system's encoding.
struct EffectiveSetting {
    std::string section;
    std::string key;
    std::string value;
    std::string
        source;  ///< "default", "file", the option that gave it, or "program" for what velmorad itself sets
};

/// Every setting of the INI object's file, and what [Ports] has, as a start with these overrides would use
/// them. The file stays as it is; one that a start would write anew counts as none. Throws RunTimeError for a
/// value that would fail the start.
std::vector<EffectiveSetting> effectiveSettings(clsIniFile& ini, const Files& files, const PathRules& rules,
                                                const std::string& documents, const RunOverrides& overrides);

/// The settings as a table: where each comes from, its section, its key and its value.
std::string printedSettings(const std::vector<EffectiveSetting>& settings);

}  // namespace velmora
