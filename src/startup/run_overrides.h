// What a command line says instead of the configuration file, for one run.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// Each value that is given takes the place of the file's and is not written back. Paths are in the system's
/// encoding.
struct RunOverrides {
    std::optional<std::string> configPath;    ///< the configuration file itself
    std::optional<std::string> port;          ///< "COM<n>" or a device path
    std::optional<std::int32_t> baud;         ///< bits per second, used as it is
    std::optional<std::string> folder;        ///< DownloadPath; relative to the current folder
    std::optional<std::int32_t> fileType;     ///< DataFileType; outside 0 to 3 it is 0
    std::optional<bool> stayInFolder;         ///< StayInFolder
    std::optional<bool> autoStart;            ///< AutoStart: whether the server starts with the program
    std::optional<std::string> profile = {};  ///< whose configuration file it is; a path counts more
};

/// What takes the place of a key of the file.
struct GivenValue {
    std::string option;  ///< the option of the command line; "program" for what the program itself sets
    std::string value;   ///< as the file would have it
};

/// The one for a key, in any case; nothing when the file counts.
std::optional<GivenValue> givenValue(const RunOverrides& overrides, std::string_view section,
                                     std::string_view key);

/// Whether one of them takes the place of a key of the file, in any case.
bool isOverridden(const RunOverrides& overrides, std::string_view section, std::string_view key);

}  // namespace velmora
