#include "platform/win32/win32_lookup.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "platform/short_names.h"
#include "platform/win32/ansi_text.h"
#include "platform/win32/win32_errors.h"
#include "platform/win32/win32_folder.h"
#include "platform/win32/win32_handle.h"
#include "platform/windows_paths.h"

namespace velmora {
namespace {

std::uint64_t joined(DWORD high, DWORD low) {
    return (std::uint64_t{high} << 32) | low;
}

/// The status of what a link leads to.
std::uint32_t readLinkedStatus(const std::string& path, Win32Status& status) {
    const Win32Handle handle(CreateFileA(path.c_str(), FILE_READ_ATTRIBUTES,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                         OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION information{};
    if (!handle.isValid() || GetFileInformationByHandle(handle.get(), &information) == 0) {
        return GetLastError();
    }
    status.isFolder = (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    status.size = joined(information.nFileSizeHigh, information.nFileSizeLow);
    return ERROR_SUCCESS;
}

bool isMissing(const std::string& path) {
    return GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES &&
           (GetLastError() == ERROR_FILE_NOT_FOUND || GetLastError() == ERROR_PATH_NOT_FOUND);
}

/// Whether an absolute path is one of the device name space ("\\.\COM1", also what Windows makes of "NUL") or
/// of the pipes of this or another machine ("\\server\pipe\name").
bool leadsToADevice(const std::string& absolute) {
    if (absolute.substr(0, 2) != "\\\\") {
        return false;
    }
    const std::size_t serverEnd = std::min(absolute.find('\\', 2), absolute.size());
    const std::string server = absolute.substr(2, serverEnd - 2);
    const std::size_t shareStart = std::min(serverEnd + 1, absolute.size());
    const std::string share =
        upperCase(absolute.substr(shareStart, absolute.find('\\', shareStart) - shareStart));
    return server == "." || server == "?" || share == "PIPE" || share == "MAILSLOT";
}

void requireFilePath(const std::string& path) {
    if (path.empty() || path.size() >= MAX_PATH ||
        path.find_first_of(std::string_view("*?<>|\"\0", 7)) != std::string::npos ||
        path.find(':', 2) != std::string::npos || path.front() == ':' || !isExactText(path, CP_ACP)) {
        throw RunTimeError(ErrorNumber::BadFileName, path);
    }
    std::array<char, MAX_PATH> absolute{};
    const DWORD length =
        GetFullPathNameA(path.c_str(), static_cast<DWORD>(absolute.size()), absolute.data(), nullptr);
    if (length == 0) {
        throw win32Error(GetLastError(), path);
    }
    if (length >= absolute.size()) {
        throw RunTimeError(ErrorNumber::BadFileName, path);
    }
    if (leadsToADevice(absolute.data())) {
        throw RunTimeError(ErrorNumber::PathFileAccess, path);
    }
}

/// Gives a component of a path, in a folder that is empty or ends in a separator or ":", its new form.
using ComponentForm = std::function<std::string(const std::string& folder, const std::string& component)>;

/// A path with every name behind its root in a new form; the folder of each is already in the new form.
std::string withComponents(const std::string& path, const ComponentForm& formOf) {
    const std::size_t root = WindowsPaths({}).drive(path).size();
    std::string out = path.substr(0, root);
    for (std::size_t start = root; start < path.size();) {
        const std::size_t end = std::min(path.find_first_of(kWindowsSeparators, start), path.size());
        const std::string component = path.substr(start, end - start);
        const bool isName = !component.empty() && component != "." && component != "..";
        out += isName ? formOf(out, component) : component;
        if (end < path.size()) {
            out += path[end];
        }
        start = end + 1;
    }
    return out;
}

std::string storedName(const std::string& folder, const std::string& component) {
    WIN32_FIND_DATAW data{};
    const HANDLE search = FindFirstFileW(wideFromAnsi(folder + component).c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) {
        return component;
    }
    FindClose(search);
    return narrowName(data).value_or(component);
}

/// One text for a folder, whatever path leads to it but for links.
std::string absoluteFolder(const std::string& folder) {
    std::array<char, MAX_PATH> path{};
    const DWORD length =
        GetFullPathNameA((folder + ".").c_str(), static_cast<DWORD>(path.size()), path.data(), nullptr);
    return upperCase(length > 0 && length < path.size() ? path.data() : folder);
}

}  // namespace

std::uint32_t readWin32Status(const std::string& path, Win32Status& status) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data) == 0) {
        return GetLastError();
    }
    status.isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    status.size = joined(data.nFileSizeHigh, data.nFileSizeLow);
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        if (const std::uint32_t error = readLinkedStatus(path, status); error != ERROR_SUCCESS) {
            return error;
        }
    }
    return isWindowsSeparator(path.back()) && !status.isFolder ? ERROR_DIRECTORY : ERROR_SUCCESS;
}

std::string Win32Lookup::lookUp(const std::string& path) const {
    requireFilePath(path);
    if (path.find('~') == std::string::npos || !isMissing(path)) {
        return path;
    }
    return withComponents(path, [this](const std::string& folder, const std::string& component) {
        return longName(folder, component);
    });
}

std::string Win32Lookup::longName(const std::string& folder, const std::string& component) const {
    if (!mayBeMadeUp(component) || !isMissing(folder + component)) {
        return component;
    }
    if (const std::optional<std::string> given = given_.nameOf(absoluteFolder(folder), component)) {
        return *given;
    }
    try {
        shortNames(folder, readWin32Folder(folder));
        return given_.nameOf(absoluteFolder(folder), component).value_or(component);
    } catch (const RunTimeError&) {
        return component;  // the operation on the path will tell what is wrong with it
    }
}

std::string Win32Lookup::pathOfShortName(const std::string& path) const {
    const std::size_t separator = path.find_last_of(kWindowsSeparators);
    const std::size_t nameStart = separator == std::string::npos ? 0 : separator + 1;
    if (!mayBeMadeUp(std::string_view(path).substr(nameStart))) {
        return path;
    }
    const std::string folder = lookUp(path.substr(0, nameStart) + ".");
    const std::optional<std::string> given =
        given_.nameOf(absoluteFolder(folder.substr(0, folder.size() - 1)), path.substr(nameStart));
    return given ? path.substr(0, nameStart) + *given : path;
}

std::vector<std::string> Win32Lookup::shortNames(const std::string& folder,
                                                 const std::vector<Win32Entry>& entries) const {
    const FolderNames names = folderNames(entries);
    return given_.give(absoluteFolder(folder), names.names, names.kept);
}

std::string withStoredLetters(const std::string& path) {
    std::string stored = withComponents(path, storedName);
    if (stored.substr(1, 1) == ":") {
        stored[0] = upperCase(stored.substr(0, 1))[0];
    }
    return stored;
}

}  // namespace velmora
