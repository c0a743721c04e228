// Settings saved in the configuration file.
#pragma once

#include <string>

#include "server/settings_store.h"
#include "startup/ini_file.h"
#include "startup/run_overrides.h"

namespace velmora {

/// Writes entries through the INI object. What the command line set for this run is left in the file as it
/// was. The file and the overrides must outlive the store.
class IniSettingsStore : public SettingsStore {
  public:
    IniSettingsStore(clsIniFile& ini, const RunOverrides& overrides);

    /// The value of a setting that is a path is taken in the system's encoding, any other as Windows-1252.
    void put(const std::string& section, const std::string& key, const std::string& value) override;

  private:
    clsIniFile& ini_;
    const RunOverrides& overrides_;
};

}  // namespace velmora
