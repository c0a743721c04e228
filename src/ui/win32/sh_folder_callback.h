// The procedure that the shell's folder dialog calls: the module SHFolder_callback.
#pragma once

#include <windows.h>

namespace velmora {

/// Hands BFFM_INITIALIZED, BFFM_SELCHANGED and BFFM_VALIDATEFAILEDA to the cSHFolder whose address `folder`
/// is; a BFFCALLBACK. Returns 1 for a failed validation, which keeps the dialog open, otherwise 0.
int CALLBACK shFolderCallback(HWND dialog, UINT message, LPARAM detail, LPARAM folder);

}  // namespace velmora
