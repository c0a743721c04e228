#include "ui/win32/item_lists.h"

#include "platform/win32/ansi_text.h"

namespace velmora {

ItemList specialFolderItem(HWND owner, int number) {
    ITEMIDLIST_ABSOLUTE* item = nullptr;
    if (FAILED(SHGetSpecialFolderLocation(owner, number, &item))) {
        return nullptr;
    }
    return ItemList(item);
}

std::optional<std::string> pathOfItem(PCIDLIST_ABSOLUTE item) {
    char path[MAX_PATH] = "";
    wchar_t wide[MAX_PATH] = L"";
    if (SHGetPathFromIDListW(item, wide) == FALSE) {
        return std::string();
    }
    // The A function puts similar letters for those that the code page lacks, which may name another folder.
    if (SHGetPathFromIDListA(item, path) != FALSE && exactAnsi(wide) == path) {
        return std::string(path);
    }
    return exactPath(wide);
}

std::optional<std::string> exactPath(const std::wstring& path) {
    if (const auto own = exactAnsi(path)) {
        return own;
    }
    wchar_t shortPath[MAX_PATH];
    const DWORD length = GetShortPathNameW(path.c_str(), shortPath, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) {
        return std::nullopt;
    }
    return exactAnsi(std::wstring(shortPath, length));
}

}  // namespace velmora
