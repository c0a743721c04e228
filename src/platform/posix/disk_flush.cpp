#include "platform/posix/disk_flush.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/descriptor.h"
#include "platform/posix/system_errors.h"

namespace velmora {

void flushFile(int descriptor, const std::string& path) {
    // EINVAL and its relatives are what a file system without such a call answers.
    if (withoutInterruption([&] { return fsync(descriptor); }) != 0 && errno != EINVAL && errno != ENOTSUP &&
        errno != ENOSYS) {
        throw openFileError(errno, path);
    }
}

void flushEntry(const std::string& path) {
    const std::size_t cut = path.rfind('/');
    const std::string folder = cut == std::string::npos ? "." : path.substr(0, cut + 1);
    const Descriptor opened(
        withoutInterruption([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (opened.number() != -1) {
        flushFile(opened.number(), folder);
    }
}

}  // namespace velmora
