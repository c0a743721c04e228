#include "platform/win32/win32_folder.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "platform/short_names.h"
#include "platform/win32/ansi_text.h"
#include "platform/win32/win32_errors.h"
#include "platform/win32/win32_lookup.h"

namespace velmora {
namespace {

struct CloseSearch {
    explicit CloseSearch(HANDLE search) : handle(search) {}
    CloseSearch(const CloseSearch&) = delete;
    CloseSearch& operator=(const CloseSearch&) = delete;
    ~CloseSearch() { FindClose(handle); }
    HANDLE handle;
};

/// The short name that the volume keeps beside the name, if the Organiser can write it.
std::string keptShortName(const WIN32_FIND_DATAW& data) {
    const std::optional<std::string> name = exactAnsi(data.cAlternateFileName);
    return name ? ownShortName(*name).value_or(std::string()) : std::string();
}

bool isFile(const std::string& folder, const std::string& name, DWORD attributes) {
    if ((attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) != 0) {
        return false;
    }
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return true;
    }
    Win32Status status;
    return readWin32Status(folder + name, status) == ERROR_SUCCESS && !status.isFolder;
}

void addEntry(std::vector<Win32Entry>& entries, const std::string& folder, const WIN32_FIND_DATAW& data) {
    const std::wstring_view wide = data.cFileName;
    if (wide == L"." || wide == L"..") {
        return;
    }
    if (const std::optional<std::string> name = narrowName(data)) {
        entries.push_back({*name, keptShortName(data), isFile(folder, *name, data.dwFileAttributes)});
    }
}

/// What it means that nothing at all was found: an empty root, a folder that may not be read, or no folder.
std::vector<Win32Entry> nothingFound(const std::string& folder, DWORD error) {
    Win32Status status;
    const bool isFolder =
        readWin32Status(folder.empty() ? "." : folder, status) == ERROR_SUCCESS && status.isFolder;
    if (isFolder && error == ERROR_FILE_NOT_FOUND) {
        return {};
    }
    // The system has several numbers for what is no folder, some of which mean a bad name elsewhere.
    const bool isMissing = !isFolder && win32Error(error, folder).errorNumber() == ErrorNumber::BadFileName;
    throw win32Error(isMissing || error == ERROR_FILE_NOT_FOUND ? ERROR_PATH_NOT_FOUND : error, folder);
}

}  // namespace

std::optional<std::string> narrowName(const WIN32_FIND_DATAW& data) {
    std::optional<std::string> name = exactAnsi(data.cFileName);
    if (name && (name->back() == '.' || name->back() == ' ')) {
        name.reset();  // cut off by the functions that open files
    }
    if (!name && data.cAlternateFileName[0] != L'\0') {
        name = exactAnsi(data.cAlternateFileName);
    }
    return name;
}

std::vector<Win32Entry> readWin32Folder(const std::string& folder) {
    WIN32_FIND_DATAW data{};
    const CloseSearch search(FindFirstFileExW(wideFromAnsi(folder + "*").c_str(), FindExInfoStandard, &data,
                                              FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH));
    if (search.handle == INVALID_HANDLE_VALUE) {
        return nothingFound(folder, GetLastError());
    }
    std::vector<Win32Entry> entries;
    do {
        addEntry(entries, folder, data);
    } while (FindNextFileW(search.handle, &data) != 0);
    if (GetLastError() != ERROR_NO_MORE_FILES) {
        throw win32OpenFileError(GetLastError(), folder);
    }
    std::sort(entries.begin(), entries.end(),
              [](const Win32Entry& a, const Win32Entry& b) { return a.name < b.name; });
    return entries;
}

FolderNames folderNames(const std::vector<Win32Entry>& entries) {
    FolderNames all;
    all.names.reserve(entries.size());
    all.kept.reserve(entries.size());
    for (const Win32Entry& entry : entries) {
        all.names.push_back(entry.name);
        all.kept.push_back(entry.shortName);
    }
    return all;
}

}  // namespace velmora
