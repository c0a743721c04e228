#include "startup/effective_settings.h"

#include <algorithm>
#include <cstddef>

#include "base/system_text.h"
#include "startup/settings.h"
#include "startup/start_paths.h"

namespace velmora {
namespace {

constexpr const char* kDefault = "default";
constexpr const char* kFile = "file";

std::string truth(bool value) {
    return value ? "True" : "False";
}

/// A setting that was read, as the file would have it.
std::string writtenValue(const SettingRow& row, const Settings& settings) {
    switch (row.type) {
        case SettingType::Path:
            return settings.*row.path;
        case SettingType::Boolean:
            return truth(row.flag != nullptr ? settings.options.*row.flag : settings.*row.limit);
        case SettingType::Text:
            return toSystemText(settings.options.*row.text);
        case SettingType::Integer:
            break;
    }
    if (row.wideNumber != nullptr) {
        return std::to_string(settings.*row.wideNumber);
    }
    if (row.number != nullptr) {
        return std::to_string(settings.*row.number);
    }
    const auto& number = settings.*row.optionalNumber;
    return number ? std::to_string(*number) : "";
}

/// The entries of a section, as far as there is a file.
SectionDictionary entriesOf(clsIniFile& ini, bool hasFile, std::string_view section) {
    SectionDictionary entries;
    if (hasFile) {
        ini.setSectionName(std::string(section));
        ini.GetSectEntriesDict(entries);
    }
    return entries;
}

Settings readAll(clsIniFile& ini, const RunOverrides& overrides) {
    Settings settings;
    readSettings(ini, SettingStep::get_Settings, overrides, settings);
    readSettings(ini, SettingStep::init_Ports, overrides, settings);
    settings.ports = readPortDevices(ini);
    return settings;
}

}  // namespace

std::vector<EffectiveSetting> effectiveSettings(clsIniFile& ini, const Files& files, const PathRules& rules,
                                                const std::string& documents, const RunOverrides& overrides) {
    const bool hasFile = isConfiguration(files, ini.IniFile());
    const Settings read = hasFile ? readAll(ini, overrides) : Settings();
    std::vector<EffectiveSetting> settings;
    for (const SettingRow& row : settingsTable()) {
        EffectiveSetting setting{std::string(row.section), std::string(row.key), std::string(row.defaultText),
                                 kDefault};
        if (const auto given = givenValue(overrides, row.section, row.key)) {
            setting.value = given->value;
            setting.source = given->option;
        } else if (entriesOf(ini, hasFile, row.section).contains(row.key)) {
            setting.value = writtenValue(row, read);
            setting.source = kFile;
        }
        if (row.path != nullptr) {
            const DownloadFolder folder = downloadFolder(files, rules, documents, read.*row.path, overrides);
            setting.value = folder.path;
            setting.source = folder.isUsual ? kDefault : setting.source;
        }
        settings.push_back(setting);
    }
    // They are read in another order.
    std::stable_partition(settings.begin(), settings.end(),
                          [](const EffectiveSetting& setting) { return setting.section == "Settings"; });
    for (const auto& [name, device] : read.ports) {
        settings.push_back({"Ports", name, device, kFile});
    }
    return settings;
}

std::string printedSettings(const std::vector<EffectiveSetting>& settings) {
    std::size_t width = 0;
    for (const EffectiveSetting& setting : settings) {
        width = std::max(width, setting.source.size());
    }
    std::string table;
    for (const EffectiveSetting& setting : settings) {
        table += setting.source + std::string(width - setting.source.size() + 2, ' ') + "[" +
                 setting.section + "] " + setting.key + "=" + setting.value + "\n";
    }
    return table;
}

}  // namespace velmora
