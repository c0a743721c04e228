// The main window's position between runs, in the registry of Windows.
#pragma once

#include <optional>
#include <string>

#include "ui/registry.h"

namespace velmora {

/// The key that this program keeps its values in, `SOFTWARE\Quillbrook\Velmora`, or that of a profile.
std::string settingsKeyOf(const std::optional<std::string>& profile);

/// The values of one key below HKEY_CURRENT_USER, by the functions of platform/win32/registry_functions.h.
class RegistryStore : public WindowPositionStore {
  public:
    /// On a key, which must have no keys below it.
    explicit RegistryStore(std::string key);

    /// A value as a text; a number as "&h" and eight hexadecimal digits.
    std::optional<StoredValue> read(const std::string& name) override;
    bool write(const std::string& name, const StoredValue& value) override;
    /// Deletes the key; the next write makes it again.
    void deleteAll() override;

  private:
    std::string key_;
};

}  // namespace velmora
