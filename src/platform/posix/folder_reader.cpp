#include "platform/posix/folder_reader.h"

#include <dirent.h>

#include <cerrno>
#include <memory>

#include "platform/posix/system_errors.h"

namespace velmora {
namespace {

EntryKind kindOf(const dirent& entry) {
    switch (entry.d_type) {
        case DT_REG:
            return EntryKind::File;
        case DT_LNK:
        case DT_UNKNOWN:
            return EntryKind::Unknown;
        default:
            return EntryKind::Other;
    }
}

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

}  // namespace

void readFolder(const std::string& folder,
                const std::function<bool(std::string_view name, EntryKind kind)>& visit) {
    const std::unique_ptr<DIR, CloseFolder> stream(opendir(folder.empty() ? "." : folder.c_str()));
    if (stream == nullptr) {
        throw errno == ENOENT ? RunTimeError(ErrorNumber::PathNotFound, folder) : systemError(errno, folder);
    }
    for (;;) {
        errno = 0;
        const dirent* entry = readdir(stream.get());
        if (entry == nullptr) {
            if (errno != 0) {
                throw openFileError(errno, folder);
            }
            return;
        }
        const std::string_view name = entry->d_name;
        if (name != "." && name != ".." && !visit(name, kindOf(*entry))) {
            return;
        }
    }
}

}  // namespace velmora
