#include "platform/win32/registry_functions.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace velmora {
namespace {

/// Every right to what the key holds and to read who may use it; none to delete it or to give it away.
constexpr REGSAM kAccess = KEY_READ | KEY_WRITE | KEY_CREATE_LINK;
static_assert(kAccess == 0x2003F);

constexpr DWORD kBufferSize = 1024;

/// An open key, closed in the end; null when it cannot be opened.
class OpenKey {
  public:
    enum class Missing { Leave, Create };

    OpenKey(HKEY root, const std::string& key, Missing missing) {
        LSTATUS status = RegOpenKeyExA(root, key.c_str(), 0, kAccess, &key_);
        if (status == ERROR_FILE_NOT_FOUND && missing == Missing::Create) {
            status = RegCreateKeyA(root, key.c_str(), &key_);
        }
        if (status != ERROR_SUCCESS) {
            key_ = nullptr;
        }
    }
    ~OpenKey() {
        if (key_ != nullptr) {
            RegCloseKey(key_);
        }
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    HKEY get() const { return key_; }

  private:
    HKEY key_ = nullptr;
};

std::string hexText(std::string_view littleEndian) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text = "&h";
    for (const char byte : std::string(littleEndian.rbegin(), littleEndian.rend())) {
        const auto code = static_cast<unsigned char>(byte);
        text += kDigits[code >> 4];
        text += kDigits[code & 0xF];
    }
    return text;
}

}  // namespace

std::optional<std::string> RegReadValue(HKEY root, const std::string& key, const std::string& valueName) {
    const OpenKey open(root, key, OpenKey::Missing::Leave);
    std::array<BYTE, kBufferSize> buffer{};
    DWORD size = kBufferSize;
    DWORD type = REG_NONE;
    if (open.get() == nullptr || RegQueryValueExA(open.get(), valueName.c_str(), nullptr, &type,
                                                  buffer.data(), &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    const std::string bytes(buffer.begin(), buffer.begin() + std::min(size, kBufferSize));
    if (type == REG_DWORD && bytes.size() == sizeof(DWORD)) {
        return hexText(bytes);
    }
    return type == REG_SZ ? std::optional(bytes.substr(0, bytes.find('\0'))) : std::nullopt;
}

bool RegWriteValue(HKEY root, const std::string& key, const std::string& valueName, DWORD type,
                   const RegistryValue& value) {
    std::string bytes;
    if (const auto* text = std::get_if<std::string>(&value); text != nullptr && type == REG_SZ) {
        bytes.assign(text->c_str(), text->size() + 1);  // the zero byte at the end belongs to the value
    } else if (const auto* number = std::get_if<std::uint32_t>(&value);
               number != nullptr && type == REG_DWORD) {
        bytes.resize(sizeof(*number));
        std::memcpy(bytes.data(), number, sizeof(*number));
    } else {
        return false;
    }
    const OpenKey open(root, key, OpenKey::Missing::Create);
    return open.get() != nullptr &&
           RegSetValueExA(open.get(), valueName.c_str(), 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                          static_cast<DWORD>(bytes.size())) == ERROR_SUCCESS;
}

void RegDeleteSettingsKey(const std::string& key) {
    RegDeleteKeyA(HKEY_CURRENT_USER, key.c_str());
}

}  // namespace velmora
