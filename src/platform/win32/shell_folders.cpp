#include "platform/win32/shell_folders.h"

#include <windows.h>
// Above it they do not compile.
#include <objbase.h>
#include <shlobj.h>

#include <array>

#include "platform/win32/ansi_text.h"
#include "platform/windows_paths.h"

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

/// The path of an item of the shell; empty for one that lies on no disk. The narrow function is not asked:
/// the path that it tells may be that of another user with a similar name.
std::string pathOfItem(const ITEMIDLIST* item) {
    std::array<wchar_t, MAX_PATH> path{};
    return SHGetPathFromIDListW(item, path.data()) == 0 ? std::string() : ansiPath(path.data());
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

std::string ShellFolders::programData() const {
    return WindowsPaths({}).join(specialFolder(CSIDL_LOCAL_APPDATA), "Velmora");
}

std::string ShellFolders::documents() const {
    return specialFolder(CSIDL_PERSONAL);
}

std::string ShellFolders::temporary() const {
    std::array<wchar_t, MAX_PATH + 1> folder{};
    const DWORD length = GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    return length == 0 || length >= folder.size() ? rootOfCurrentDrive()
                                                  : withoutFinalSeparator(ansiPath(folder.data()));
}

}  // namespace velmora
