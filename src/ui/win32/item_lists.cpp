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
    wchar_t path[MAX_PATH] = L"";
    return SHGetPathFromIDListW(item, path) == FALSE ? std::string() : exactPath(path);
}

}  // namespace velmora
