#include "platform/win32/ansi_text.h"

#include <windows.h>

#include <array>
#include <utility>

namespace velmora {
namespace {

/// A text in a code page. A character that the page lacks is "?", or a similar letter where `flags` let it.
std::string narrowed(std::wstring_view text, UINT codePage, DWORD flags) {
    const int length = static_cast<int>(text.size());
    const int needed =
        WideCharToMultiByte(codePage, flags, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string out(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(codePage, flags, text.data(), length, out.data(), needed, nullptr, nullptr);
    return out;
}

std::wstring widened(std::string_view text, UINT codePage) {
    const int length = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(codePage, 0, text.data(), length, nullptr, 0);
    std::wstring out(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), length, out.data(), needed);
    return out;
}

}  // namespace

std::wstring wideFromAnsi(std::string_view text) {
    return widened(text, CP_ACP);
}

bool isExactText(std::string_view bytes, unsigned codePage) {
    const int length = static_cast<int>(bytes.size());
    return bytes.empty() ||
           (MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.data(), length, nullptr, 0) != 0 &&
            narrowed(widened(bytes, codePage), codePage, 0) == bytes);
}

std::wstring wideFromUtf8(std::string_view text) {
    return widened(text, CP_UTF8);
}

std::string utf8FromWide(std::wstring_view text) {
    return narrowed(text, CP_UTF8, 0);
}

std::optional<std::string> exactAnsi(std::wstring_view text) {
    std::string nearest = narrowed(text, CP_ACP, 0);
    return wideFromAnsi(nearest) == text ? std::optional(std::move(nearest)) : std::nullopt;
}

std::optional<std::string> exactPath(const std::wstring& path) {
    if (std::optional<std::string> exact = exactAnsi(path)) {
        return exact;
    }
    std::array<wchar_t, MAX_PATH> buffer{};
    const DWORD length = GetShortPathNameW(path.c_str(), buffer.data(), static_cast<DWORD>(buffer.size()));
    const bool fits = length > 0 && length < buffer.size();
    return fits ? exactAnsi(std::wstring_view(buffer.data(), length)) : std::nullopt;
}

std::string ansiPath(const std::wstring& path) {
    // UTF-8 as the ANSI code page has every character, and knows no such flag.
    const DWORD flags = GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
    std::optional<std::string> exact = exactPath(path);
    return exact ? *std::move(exact) : narrowed(path, CP_ACP, flags);
}

}  // namespace velmora
