#include "startup/ini_settings_store.h"

#include "startup/settings.h"

namespace velmora {

IniSettingsStore::IniSettingsStore(clsIniFile& ini, const RunOverrides& overrides)
    : ini_(ini), overrides_(overrides) {}

void IniSettingsStore::put(const std::string& section, const std::string& key, const std::string& value) {
    if (isOverridden(overrides_, section, key)) {
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
