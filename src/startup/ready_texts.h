// Texts that are ready made in other languages, taken over into the user's configuration file.
#pragma once

#include <string>

#include "base/files.h"
#include "base/path_rules.h"
#include "platform/profile/profile_files.h"

namespace velmora {

/// Takes every text of the file `ready` over into the configuration file `path`: the keys of messageKeys(),
/// nothing else; what `ready` lacks stays. Returns where the configuration is kept as it was: beside it,
/// under a name that was free. RunTimeError when a file cannot be read or written.
std::string takeTexts(ProfileFiles& profiles, Files& files, const PathRules& rules, const std::string& ready,
                      const std::string& path);

}  // namespace velmora
