#include "platform/posix/system_errors.h"

#include <sys/stat.h>

#include <cerrno>
#include <system_error>

namespace velmora {
namespace {

bool isFolder(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

ErrorNumber missing(const std::string& path) {
    const std::size_t cut = path.rfind('/');
    if (cut == std::string::npos || cut == 0 || isFolder(path.substr(0, cut))) {
        return ErrorNumber::FileNotFound;
    }
    return ErrorNumber::PathNotFound;
}

/// The numbers that mean the same with and without a path.
ErrorNumber commonNumber(int error) {
    switch (error) {
        case EACCES:
        case EPERM:
        case EROFS:
        case EISDIR:
        case ENXIO:  // a pipe without a reader, a device that is not there
        case ENODEV:
            return ErrorNumber::PathFileAccess;
        case EBUSY:
        case ETXTBSY:
        case EAGAIN:  // also EWOULDBLOCK: a lock that another program holds
            return ErrorNumber::PermissionDenied;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return ErrorNumber::DiskFull;
        case EEXIST:
            return ErrorNumber::FileAlreadyExists;
        case EMFILE:
        case ENFILE:
            return ErrorNumber::TooManyFiles;
        case EBADF:
            return ErrorNumber::BadFileNameOrNumber;
        default:
            return ErrorNumber::DeviceIoError;
    }
}

ErrorNumber pathNumber(int error, const std::string& path) {
    switch (error) {
        case ENOENT:
            return missing(path);
        case ENOTDIR:
            return ErrorNumber::PathNotFound;
        case ENAMETOOLONG:
        case EILSEQ:
        case EINVAL:  // some file systems refuse characters so
        case ELOOP:
            return ErrorNumber::BadFileName;
        default:
            return commonNumber(error);
    }
}

std::string detail(int error, const std::string& path) {
    return path + " (" + std::generic_category().message(error) + ")";
}

}  // namespace

RunTimeError systemError(int error, const std::string& path) {
    return RunTimeError(pathNumber(error, path), detail(error, path));
}

RunTimeError openFileError(int error, const std::string& path) {
    return RunTimeError(commonNumber(error), detail(error, path));
}

}  // namespace velmora
