#include "platform/win32/win32_links.h"

#include <windows.h>

#include <array>

#include "base/run_time_error.h"
#include "platform/win32/ansi_text.h"
#include "platform/win32/win32_handle.h"
#include "platform/windows_paths.h"

namespace velmora {
namespace {

/// A path as others take it, which Windows tells in the form for long paths: without "\\\\?\\" at its start.
std::wstring withoutLongMark(const std::wstring& path) {
    constexpr std::wstring_view kMark = L"\\\\?\\";
    constexpr std::wstring_view kNetworkMark = L"\\\\?\\UNC\\";
    if (path.starts_with(kNetworkMark)) {
        return L"\\\\" + path.substr(kNetworkMark.size());
    }
    return path.starts_with(kMark) ? path.substr(kMark.size()) : path;
}

/// Where Windows itself finds what there is, links followed; empty when there is nothing.
std::wstring finalPath(const std::string& path) {
    const Win32Handle handle(CreateFileA(path.c_str(), FILE_READ_ATTRIBUTES,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                         OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    std::array<wchar_t, 1024> buffer{};
    const DWORD length = handle.isValid() ? GetFinalPathNameByHandleW(handle.get(), buffer.data(),
                                                                      static_cast<DWORD>(buffer.size()), 0)
                                          : 0;
    return length < buffer.size() ? withoutLongMark({buffer.data(), length}) : std::wstring();
}

std::optional<std::string> narrowFinalPath(const std::string& path) {
    const std::wstring found = finalPath(path);
    return found.empty() ? std::nullopt : exactPath(found);
}

}  // namespace

std::string pathBehindWin32Links(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return path;
    }
    const std::wstring target = finalPath(path);
    if (target.empty()) {
        return path;
    }
    const std::optional<std::string> narrow = exactPath(target);
    if (!narrow) {
        throw RunTimeError(ErrorNumber::BadFileName, path);
    }
    return *narrow;
}

std::optional<std::string> resolvedWin32Path(const std::string& path) {
    if (GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES) {
        return narrowFinalPath(path);
    }
    const std::size_t separator = path.find_last_of(kWindowsSeparators);
    if (GetLastError() != ERROR_FILE_NOT_FOUND || separator == std::string::npos) {
        return std::nullopt;
    }
    const std::optional<std::string> folder = narrowFinalPath(path.substr(0, separator + 1));
    return folder ? std::optional(WindowsPaths({}).join(*folder, path.substr(separator + 1))) : std::nullopt;
}

}  // namespace velmora
