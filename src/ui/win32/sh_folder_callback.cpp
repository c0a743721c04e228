#include "ui/win32/sh_folder_callback.h"

#include <shlobj.h>

#include "ui/win32/c_sh_folder.h"

namespace velmora {

// The dialog passes on the lParam of its BROWSEINFO, so the browser in use need not be kept in a variable
// of the module, and two dialogs would not mix.
int CALLBACK shFolderCallback(HWND dialog, UINT message, LPARAM detail, LPARAM folder) {
    auto* browser = reinterpret_cast<cSHFolder*>(folder);
    if (browser == nullptr) {
        return 0;
    }
    switch (message) {
        case BFFM_INITIALIZED:
            browser->dialogOpened(dialog);
            return 0;
        case BFFM_SELCHANGED:
            browser->selectionMoved();
            return 0;
        case BFFM_VALIDATEFAILEDA: {
            const auto* typed = reinterpret_cast<const char*>(detail);
            browser->validationFailed(typed != nullptr ? typed : "");
            return 1;
        }
        default:
            return 0;
    }
}

}  // namespace velmora
