#include <windows.h>

#include "platform/known_folders.h"

namespace velmora {

std::string windowsFolder() {
    std::string path(MAX_PATH, '\0');
    const UINT length = GetWindowsDirectoryA(path.data(), MAX_PATH);
    path.resize(length < MAX_PATH ? length : 0);
    return path;
}

}  // namespace velmora
