#include "startup/settings.h"

#include <algorithm>
#include <charconv>

#include "base/byte_text.h"
#include "serial/mode_string.h"

namespace velmora {
namespace {

constexpr std::string_view kSettings = "Settings";
constexpr std::string_view kOnExit = "OnExit";
constexpr std::string_view kPorts = "Ports";

std::int16_t anyNumber(std::int16_t value) {
    return value;
}

/// Whether the device takes the rate shows when it is opened.
std::int32_t rateOrDefault(std::int32_t rate) {
    return rate < kLowestRate || rate > kHighestRate ? 9600 : rate;
}

std::int16_t upToThree(std::int16_t value) {
    return value < 0 || value > 3 ? std::int16_t{0} : value;
}

std::int16_t zeroOrOne(std::int16_t value) {
    return value == 1 ? std::int16_t{1} : std::int16_t{0};
}

std::int16_t daysOrDefault(std::int16_t days) {
    return days < 0 ? std::int16_t{30} : days;
}

SettingRow flagRow(std::string_view section, std::string_view key, bool ServerOptions::*flag,
                   bool defaultValue) {
    SettingRow row{section, key, SettingType::Boolean, SettingStep::get_Settings,
                   defaultValue ? "True" : "False"};
    row.flag = flag;
    return row;
}

SettingRow numberRow(std::string_view key, SettingStep step, std::string_view defaultText,
                     std::int16_t Settings::*number, std::int16_t (*check)(std::int16_t)) {
    SettingRow row{kSettings, key, SettingType::Integer, step, defaultText};
    row.number = number;
    row.check = check;
    return row;
}

std::vector<SettingRow> makeTable() {
    SettingRow downloadPath{kSettings, "DownloadPath", SettingType::Path, SettingStep::get_Settings, ""};
    downloadPath.path = &Settings::DownloadPath;
    SettingRow wksDialect{kSettings, "WksDialect", SettingType::Integer, SettingStep::get_Settings, ""};
    wksDialect.optionalNumber = &Settings::WksDialect;
    wksDialect.check = zeroOrOne;
    SettingRow stayInFolder{kSettings, "StayInFolder", SettingType::Boolean, SettingStep::get_Settings,
                            "False"};
    stayInFolder.limit = &Settings::StayInFolder;
    SettingRow baud{kSettings, "Baud", SettingType::Integer, SettingStep::init_Ports, "9600"};
    baud.wideNumber = &Settings::Baud;
    baud.checkWide = rateOrDefault;
    SettingRow portIdentity{kSettings, "PortIdentity", SettingType::Text, SettingStep::get_Settings, ""};
    portIdentity.text = &ServerOptions::PortIdentity;
    using Options = ServerOptions;
    constexpr SettingStep kSettingsStep = SettingStep::get_Settings;
    constexpr SettingStep kPortsStep = SettingStep::init_Ports;
    return {downloadPath,
            numberRow("DataFileType", kSettingsStep, "0", &Settings::DataFileType, upToThree),
            flagRow(kSettings, "AutoStart", &Options::AutoStart, false),
            flagRow(kSettings, "AutoSave", &Options::AutoSave, true),
            flagRow(kSettings, "AutoHide", &Options::AutoHide, false),
            flagRow(kSettings, "AutoPopup", &Options::AutoPopup, false),
            flagRow(kSettings, "DontTestModem", &Options::DontTestModem, false),
            wksDialect,
            numberRow("EarlierCopies", kSettingsStep, "30", &Settings::EarlierCopies, daysOrDefault),
            stayInFolder,
            flagRow(kSettings, "Reconnect", &Options::Reconnect, true),
            flagRow(kSettings, "HideToTray", &Options::HideToTray, false),
            portIdentity,
            flagRow(kOnExit, "RestoreWin", &Options::RestoreWin, true),
            flagRow(kOnExit, "HideWin", &Options::HideWin, false),
            flagRow(kOnExit, "AskUser", &Options::AskUser, false),
            flagRow(kOnExit, "StopServer", &Options::StopServer, true),
            flagRow(kOnExit, "AllowShutdown", &Options::AllowShutdown, true),
            numberRow("Port", kPortsStep, "-1", &Settings::Port, anyNumber),
            baud};
}

/// A default of the table as a number; the table holds nothing else for integers.
template <typename Number>
Number defaultNumber(const SettingRow& row) {
    Number number = 0;
    std::from_chars(row.defaultText.data(), row.defaultText.data() + row.defaultText.size(), number);
    return number;
}

/// Whether a value begins like a number. A word would be read as 0, which can be a choice that nobody made.
bool saysNumber(std::string_view value) {
    const std::size_t start = value.find_first_not_of(" \t+-");
    return start != std::string_view::npos && value[start] >= '0' && value[start] <= '9';
}

/// The number of an entry, or the table's where the file says none.
std::int16_t readNumber(clsIniFile& ini, const SettingRow& row) {
    const std::string key(row.key);
    const auto otherwise = defaultNumber<std::int16_t>(row);
    return saysNumber(ini.GetString(key, {})) ? ini.GetInt(key, otherwise) : otherwise;
}

void readRow(clsIniFile& ini, const SettingRow& row, Settings& settings) {
    const std::string key(row.key);
    switch (row.type) {
        case SettingType::Path:
            settings.*row.path = trimBlanks(ini.GetPath(key, std::string(row.defaultText)));
            return;
        case SettingType::Boolean:
            (row.flag != nullptr ? settings.options.*row.flag : settings.*row.limit) =
                ini.GetBool(key, row.defaultText == "True");
            return;
        case SettingType::Text:
            settings.options.*row.text = trimBlanks(ini.GetString(key, std::string(row.defaultText)));
            return;
        case SettingType::Integer:
            break;
    }
    if (row.wideNumber != nullptr) {
        settings.*row.wideNumber = row.checkWide(ini.GetLong(key, defaultNumber<std::int32_t>(row)));
    } else if (row.number != nullptr) {
        settings.*row.number = row.check(readNumber(ini, row));
    } else if (!ini.GetString(key, {}).empty()) {
        settings.*row.optionalNumber = row.check(ini.GetInt(key, 0));
    }
}

/// Whether a text in capitals is "COM" and a number from 1 to 32767.
bool isPortName(std::string_view name) {
    if (!name.starts_with("COM")) {
        return false;
    }
    std::int16_t number = 0;
    const char* end = name.data() + name.size();
    const auto [stop, error] = std::from_chars(name.data() + 3, end, number);
    return error == std::errc() && stop == end && number >= 1;
}

}  // namespace

const std::vector<SettingRow>& settingsTable() {
    static const std::vector<SettingRow> kTable = makeTable();
    return kTable;
}

const SettingRow* findSetting(std::string_view section, std::string_view key) {
    const auto same = [](std::string_view a, std::string_view b) { return upperCase(a) == upperCase(b); };
    const auto& table = settingsTable();
    const auto row = std::find_if(table.begin(), table.end(), [&](const SettingRow& candidate) {
        return same(candidate.section, section) && same(candidate.key, key);
    });
    return row == table.end() ? nullptr : &*row;
}

void readSettings(clsIniFile& ini, SettingStep step, const RunOverrides& overrides, Settings& settings) {
    for (const SettingRow& row : settingsTable()) {
        if (row.step == step && !isOverridden(overrides, row.section, row.key)) {
            ini.setSectionName(std::string(row.section));
            readRow(ini, row, settings);
        }
    }
}

PortDevices readPortDevices(clsIniFile& ini) {
    ini.setSectionName(std::string(kPorts));
    SectionDictionary entries;
    ini.GetSectEntriesDict(entries);
    PortDevices devices;
    for (const auto& [key, text] : entries) {
        const std::string name = upperCase(key);
        const std::string device = isPortName(name) ? trimBlanks(ini.GetPath(key, {})) : std::string();
        if (!device.empty()) {
            devices[name] = device;
        }
    }
    return devices;
}

}  // namespace velmora
