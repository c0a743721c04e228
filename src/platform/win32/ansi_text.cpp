#include "platform/win32/ansi_text.h"

#include <windows.h>

#include <array>

namespace velmora {
namespace {

std::string nearestAnsi(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, out.data(), needed, nullptr, nullptr);
    return out;
}

}  // namespace

std::wstring wideFromAnsi(std::string_view text) {
    const int length = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
    std::wstring out(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), length, out.data(), needed);
    return out;
}

std::optional<std::string> exactAnsi(std::wstring_view text) {
    std::string nearest = nearestAnsi(text);
    return wideFromAnsi(nearest) == text ? std::optional(std::move(nearest)) : std::nullopt;
}

std::string ansiPath(const std::wstring& path) {
    if (const std::optional<std::string> exact = exactAnsi(path)) {
        return *exact;
    }
    std::array<wchar_t, MAX_PATH> buffer{};
    const DWORD length = GetShortPathNameW(path.c_str(), buffer.data(), static_cast<DWORD>(buffer.size()));
    const bool fits = length > 0 && length < buffer.size();
    return nearestAnsi(fits ? std::wstring_view(buffer.data(), length) : std::wstring_view(path));
}

}  // namespace velmora
