#include "startup/ini_settings_store.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/byte_text.h"
#include "startup/settings.h"

namespace velmora {

IniSettingsStore::IniSettingsStore(clsIniFile& ini, const RunOverrides& overrides)
    : ini_(ini), overrides_(overrides) {}

bool IniSettingsStore::overridden(const std::string& section, const std::string& key) const {
    const std::array<std::pair<const char*, bool>, 5> given = {
        {{"DOWNLOADPATH", overrides_.folder.has_value()},
         {"PORT", overrides_.port.has_value()},
         {"BAUD", overrides_.baud.has_value()},
         {"DATAFILETYPE", overrides_.fileType.has_value()},
         {"AUTOSTART", overrides_.autoStart.has_value()}}};
    const std::string wanted = upperCase(key);
    return upperCase(section) == "SETTINGS" &&
           std::any_of(std::begin(given), std::end(given),
                       [&](const auto& entry) { return entry.second && entry.first == wanted; });
}

void IniSettingsStore::put(const std::string& section, const std::string& key, const std::string& value) {
    if (overridden(section, key)) {
        return;
    }
    ini_.setSectionName(section);
    const SettingRow* row = findSetting(section, key);
    if (row != nullptr && row->type == SettingType::Path) {
        ini_.PutPath(key, value);
    } else {
        ini_.PutString(key, value);
    }
    ini_.FlushCache();
}

}  // namespace velmora
