// The registry's values as texts, and back. For source files only: windows.h comes with it, whose macros
// rename what other headers declare.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace velmora {

/// Where this program keeps its values, under HKEY_CURRENT_USER.
constexpr const char* kSettingsKey = "SOFTWARE\\Quillbrook\\Velmora";

/// What can be written: a text or a number. Texts are in the ANSI code page.
using RegistryValue = std::variant<std::string, std::uint32_t>;

/// A value of a key (RegOpenKeyExA, RegQueryValueExA): a REG_SZ as its text up to the first zero byte, a
/// REG_DWORD as "&h" and its eight hexadecimal digits, the most significant first. Nothing when the key or
/// the value cannot be read, is of another type, or is longer than 1024 bytes.
std::optional<std::string> RegReadValue(HKEY root, const std::string& key, const std::string& valueName);

/// Writes a value (RegSetValueExA): `type` REG_SZ with a text, REG_DWORD with a number. A key that is missing
/// is made (RegCreateKeyA). False when the value is not stored, also for a value that is not of the type.
bool RegWriteValue(HKEY root, const std::string& key, const std::string& valueName, DWORD type,
                   const RegistryValue& value);

/// Deletes a key of HKEY_CURRENT_USER with its values (RegDeleteKeyA); silent when it cannot.
void RegDeleteSettingsKey(const std::string& key = kSettingsKey);

}  // namespace velmora
