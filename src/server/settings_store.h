// Where settings are saved.
#pragma once

#include <string>

namespace velmora {

/// Writes entries of the configuration file.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// Writes one entry. Throws RunTimeError when the file cannot be written; the old file then stands.
    virtual void put(const std::string& section, const std::string& key, const std::string& value) = 0;
};

}  // namespace velmora
