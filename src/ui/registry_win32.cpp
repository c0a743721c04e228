#include "ui/registry_win32.h"

#include <utility>

#include "base/profile_name.h"
#include "platform/win32/registry_functions.h"

namespace velmora {

std::string settingsKeyOf(const std::optional<std::string>& profile) {
    return profile ? profiledName(kSettingsKey, *profile) : kSettingsKey;
}

RegistryStore::RegistryStore(std::string key) : key_(std::move(key)) {}

std::optional<StoredValue> RegistryStore::read(const std::string& name) {
    std::optional<std::string> text = RegReadValue(HKEY_CURRENT_USER, key_, name);
    return text ? std::optional<StoredValue>(std::move(*text)) : std::nullopt;
}

bool RegistryStore::write(const std::string& name, const StoredValue& value) {
    const DWORD type = std::holds_alternative<std::string>(value) ? REG_SZ : REG_DWORD;
    return RegWriteValue(HKEY_CURRENT_USER, key_, name, type, value);
}

void RegistryStore::deleteAll() {
    RegDeleteSettingsKey(key_);
}

}  // namespace velmora
