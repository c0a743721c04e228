#include "platform/win32/shell_folders.h"

#include <windows.h>
// Above it they do not compile.
#include <objbase.h>
#include <shlobj.h>

#include <array>

#include "platform/win32/ansi_text.h"

namespace velmora {
namespace {

std::string withoutFinalSeparator(std::string path) {
    while (path.size() > 3 && path.back() == '\\') {
        path.pop_back();
    }
    return path;
}

std::string rootOfCurrentDrive() {
    const std::string folder = currentFolder();
    return folder.substr(1, 1) == ":" ? folder.substr(0, 2) + "\\" : "C:\\";
}

bool isFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// The path of an item of the shell; empty for one that lies on no disk.
std::string pathOfItem(const ITEMIDLIST* item) {
    std::array<char, MAX_PATH> path{};
    if (SHGetPathFromIDListA(item, path.data()) != 0 && isFolder(path.data())) {
        return path.data();
    }
    // Not there, or there under a name that the narrow function cannot tell.
    std::array<wchar_t, MAX_PATH> wide{};
    return SHGetPathFromIDListW(item, wide.data()) == 0 ? std::string() : ansiPath(wide.data());
}

std::string specialFolder(int number) {
    ITEMIDLIST* item = nullptr;
    std::string path;
    if (SUCCEEDED(SHGetSpecialFolderLocation(nullptr, number, &item))) {
        path = pathOfItem(item);
        CoTaskMemFree(item);
    }
    return path.empty() ? rootOfCurrentDrive() : withoutFinalSeparator(path);
}

}  // namespace

std::string currentFolder() {
    std::array<wchar_t, MAX_PATH> folder{};
    const DWORD length = GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data());
    return length == 0 || length >= folder.size() ? "C:\\" : withoutFinalSeparator(ansiPath(folder.data()));
}

std::string ShellFolders::applicationData() const {
    return specialFolder(CSIDL_APPDATA);
}

std::string ShellFolders::documents() const {
    return specialFolder(CSIDL_PERSONAL);
}

std::string ShellFolders::temporary() const {
    std::array<char, MAX_PATH + 1> folder{};
    const DWORD length = GetTempPathA(static_cast<DWORD>(folder.size()), folder.data());
    if (length != 0 && length < folder.size() && isFolder(folder.data())) {
        return withoutFinalSeparator(folder.data());
    }
    std::array<wchar_t, MAX_PATH + 1> wide{};
    const DWORD wideLength = GetTempPathW(static_cast<DWORD>(wide.size()), wide.data());
    return wideLength == 0 || wideLength >= wide.size() ? rootOfCurrentDrive()
                                                        : withoutFinalSeparator(ansiPath(wide.data()));
}

}  // namespace velmora
