// The shell's names for folders: item lists.
#pragma once

#include <shlobj.h>
#include <windows.h>

#include <memory>
#include <optional>
#include <string>

namespace velmora {

/// Gives an item list back to the shell (CoTaskMemFree).
struct ItemListDeleter {
    void operator()(ITEMIDLIST_ABSOLUTE* item) const { CoTaskMemFree(item); }
};
using ItemList = std::unique_ptr<ITEMIDLIST_ABSOLUTE, ItemListDeleter>;

/// The special folder with a CSIDL number (SHGetSpecialFolderLocation); null when the number stands for none.
ItemList specialFolderItem(HWND owner, int number);

/// The item's path in the ANSI code page (SHGetPathFromIDListW, exactPath). A path with other characters is
/// given by its short names where the volume keeps them, never by one that names another folder. Nothing when
/// there is no such path; empty when the item is no place in the file system.
std::optional<std::string> pathOfItem(PCIDLIST_ABSOLUTE item);

}  // namespace velmora
