#include "startup/run_overrides.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/byte_text.h"

namespace velmora {

bool isOverridden(const RunOverrides& overrides, std::string_view section, std::string_view key) {
    const std::array<std::pair<std::string_view, bool>, 7> given = {
        {{"DOWNLOADPATH", overrides.folder.has_value()},
         {"PORT", overrides.port.has_value()},
         {"PORTIDENTITY", overrides.port.has_value()},
         {"BAUD", overrides.baud.has_value()},
         {"DATAFILETYPE", overrides.fileType.has_value()},
         {"STAYINFOLDER", overrides.stayInFolder.has_value()},
         {"AUTOSTART", overrides.autoStart.has_value()}}};
    const std::string wanted = upperCase(key);
    return upperCase(section) == "SETTINGS" &&
           std::any_of(given.begin(), given.end(),
                       [&](const auto& entry) { return entry.second && entry.first == wanted; });
}

}  // namespace velmora
