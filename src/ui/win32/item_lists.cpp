#include "ui/win32/item_lists.h"

#include <array>

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
    std::array<wchar_t, MAX_PATH> path{};
    return SHGetPathFromIDListW(item, path.data()) == FALSE ? std::string() : exactPath(path.data());
}

}  // namespace velmora
