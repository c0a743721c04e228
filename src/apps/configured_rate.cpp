#include "apps/configured_rate.h"

#include <ostream>

#include "base/run_time_error.h"
#include "platform/known_folders.h"
#include "platform/native.h"
#include "startup/settings.h"
#include "startup/start_paths.h"
#include "ui/no_user_box.h"

namespace velmora {

std::uint32_t configuredRate(std::ostream& errors) {
    const NativeFolders folders;
    NativeFiles files(folders.temporary());
    const NativePaths rules(currentFolder());
    NativeProfileFiles profiles(files, rules);
    NoUserBox box([&errors](const std::string& line) { errors << "velmora-doctor: " << line << '\n'; });
    const std::string path = configurationPath(rules, folders.applicationData(), {});
    Settings settings;
    if (isConfiguration(files, path)) {
        try {
            clsIniFile ini(profiles, rules, box, windowsFolder());
            ini.setIniFile(path);
            readSettings(ini, SettingStep::init_Ports, {}, settings);
        } catch (const RunTimeError& error) {
            errors << "velmora-doctor: " << path << ": " << error.what() << '\n';
            settings = {};
        }
    }
    return static_cast<std::uint32_t>(settings.Baud);
}

}  // namespace velmora
