// Any bytes as the file of a user's folders: what comes out is an absolute path without a final separator.
#include <cstdint>
#include <sstream>
#include <string>

#include "platform/posix/user_dirs.h"
#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream file(std::string(reinterpret_cast<const char*>(data), size));
    const std::optional<std::string> folder = velmora::userDir(file, "XDG_DOCUMENTS_DIR", "/home/anna");
    if (folder) {
        velmora::fuzz::require(folder->front() == '/');
        velmora::fuzz::require(folder->size() == 1 || folder->back() != '/');
        velmora::fuzz::require(folder->find('\n') == std::string::npos);
    }
    return 0;
}
