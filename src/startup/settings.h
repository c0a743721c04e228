// The settings of the configuration file: one table that reading and the user guide go by.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "server/server_options.h"
#include "startup/ini_file.h"
#include "startup/run_overrides.h"

namespace velmora {

/// Device paths by port name in capitals ("COM7"), as [Ports] has them.
using PortDevices = std::map<std::string, std::string>;

/// What the configuration file says, checked.
struct Settings {
    std::string DownloadPath;  ///< trimmed, in the system's encoding; empty when none is given
    std::int16_t Port = -1;    ///< below 1: none, search for a free one
    std::int32_t Baud = 9600;  ///< bits per second
    std::int16_t DataFileType = 0;
    std::optional<std::int16_t>
        WksDialect;                   ///< tokens of WKS worksheets: 0 the system's own, 1 the common ones
    std::int16_t EarlierCopies = 30;  ///< days for which what a save replaces is kept; 0 for none
    bool StayInFolder = false;        ///< names that lead outside the download folder are refused
    ServerOptions options;
    PortDevices ports;
};

/// How a value is written and read.
enum class SettingType {
    Path,     ///< a folder, in the system's encoding
    Integer,  ///< a 16-bit number; one that does not fit is RunTimeError 6, except in a wide one
    Boolean,  ///< clsIniFile::GetBool; another text is RunTimeError 13
    Text,     ///< taken as it is, without blanks around it
};

/// The start-up step that reads a setting and that a failure is reported with.
enum class SettingStep { get_Settings, init_Ports };

/// One setting. Exactly the member that fits the type is not null.
struct SettingRow {
    std::string_view section;
    std::string_view key;
    SettingType type;
    SettingStep step;
    /// What holds when the key is missing, as it would be written; empty for none.
    std::string_view defaultText;
    std::string Settings::*path = nullptr;
    std::int16_t Settings::*number = nullptr;
    bool ServerOptions::*flag = nullptr;
    std::string ServerOptions::*text = nullptr;
    bool Settings::*limit = nullptr;  ///< a flag that is no option of the window
    /// For settings that may be missing altogether.
    std::optional<std::int16_t> Settings::*optionalNumber = nullptr;
    /// The number to use for one that was read.
    std::int16_t (*check)(std::int16_t value) = nullptr;
    /// For a number beyond 16 bits, with a check of its own.
    std::int32_t Settings::*wideNumber = nullptr;
    std::int32_t (*checkWide)(std::int32_t value) = nullptr;
};

/// Every setting of [Settings] and [OnExit], in the order in which they are read.
const std::vector<SettingRow>& settingsTable();

/// The row of a key, in any case; null when there is none.
const SettingRow* findSetting(std::string_view section, std::string_view key);

/// Reads the settings of a step; those that are overridden stay as they are, whatever the file says.
void readSettings(clsIniFile& ini, SettingStep step, const RunOverrides& overrides, Settings& settings);

/// Reads [Ports]: entries COM<n>, n from 1 to 32767, with a device each. Others are left out.
PortDevices readPortDevices(clsIniFile& ini);

}  // namespace velmora
