#include "apps/printed_configuration.h"

#include <ostream>

#include "apps/named_folders.h"
#include "apps/server_overrides.h"
#include "arguments/program.h"
#include "base/run_time_error.h"
#include "platform/known_folders.h"
#include "platform/native.h"
#include "startup/effective_settings.h"
#include "startup/start_paths.h"
#include "ui/no_user_box.h"

namespace velmora {

int printConfiguration(const ServerArguments& arguments, std::ostream& out, std::ostream& err) {
    const NativeFolders folders;
    NativeFiles files(folders.temporary());
    const NativePaths rules(currentFolder());
    NativeProfileFiles profiles(files, rules);
    NoUserBox box([&err](const std::string& line) { err << "velmorad: " << line << '\n'; });
    const RunOverrides overrides = overridesOf(arguments);
    requireNamedFolders(files, rules, overrides);
    try {
        const std::string path = configurationPath(rules, folders.applicationData(), overrides);
        clsIniFile ini(profiles, rules, box, windowsFolder());
        ini.setIniFile(path);
        const auto settings = effectiveSettings(ini, files, rules, folders.documents(), overrides);
        out << path << (isConfiguration(files, path) ? "" : " (not there yet: a start writes it)") << '\n'
            << printedSettings(settings);
    } catch (const RunTimeError& error) {
        err << "velmorad: " << error.what() << '\n';
        return kStatusConfiguration;
    }
    return kStatusDone;
}

}  // namespace velmora
