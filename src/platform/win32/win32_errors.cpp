#include "platform/win32/win32_errors.h"

#include <windows.h>

#include <array>

#include "platform/windows_paths.h"

namespace velmora {
namespace {

// Numbers of winerror.h that older headers lack.
constexpr DWORD kVirusInfected = 225;
constexpr DWORD kDiskQuotaExceeded = 1295;

/// The numbers that mean the same with and without a path.
ErrorNumber commonNumber(DWORD error) {
    switch (error) {
        case ERROR_ACCESS_DENIED:  // also a folder in the file's place
        case ERROR_WRITE_PROTECT:
        case ERROR_FILE_READ_ONLY:
        case ERROR_NETWORK_ACCESS_DENIED:
        case ERROR_CANNOT_MAKE:
        case ERROR_CURRENT_DIRECTORY:
        case ERROR_PRIVILEGE_NOT_HELD:
        case ERROR_CANT_ACCESS_FILE:
        case kVirusInfected:
            return ErrorNumber::PathFileAccess;
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_DRIVE_LOCKED:
        case ERROR_BUSY:
        case ERROR_DELETE_PENDING:
        case ERROR_USER_MAPPED_FILE:
            return ErrorNumber::PermissionDenied;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case kDiskQuotaExceeded:
        case ERROR_FILE_TOO_LARGE:
            return ErrorNumber::DiskFull;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return ErrorNumber::FileAlreadyExists;
        case ERROR_TOO_MANY_OPEN_FILES:
        case ERROR_NO_MORE_SEARCH_HANDLES:
        case ERROR_SHARING_BUFFER_EXCEEDED:
            return ErrorNumber::TooManyFiles;
        case ERROR_INVALID_HANDLE:
            return ErrorNumber::BadFileNameOrNumber;
        case ERROR_NOT_READY:
        case ERROR_WRONG_DISK:
        case ERROR_NO_MEDIA_IN_DRIVE:
            return ErrorNumber::DiskNotReady;
        case ERROR_DEV_NOT_EXIST:  // a share that was there
        case ERROR_DEVICE_NOT_CONNECTED:
        case ERROR_DEVICE_REMOVED:
            return ErrorNumber::DeviceUnavailable;
        default:
            return ErrorNumber::DeviceIoError;
    }
}

/// Not every file system tells a missing file from a missing folder on the way to it.
ErrorNumber missing(const std::string& path) {
    const std::string folder = WindowsPaths({}).parentFolder(path);
    const bool isThere = folder.empty() || GetFileAttributesA(folder.c_str()) != INVALID_FILE_ATTRIBUTES;
    return isThere ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound;
}

ErrorNumber pathNumber(DWORD error, const std::string& path) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
            return missing(path);
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_DIRECTORY:  // a file on the way
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
            return ErrorNumber::PathNotFound;
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_BUFFER_OVERFLOW:  // a path that is too long for what is to be added
        case ERROR_NO_UNICODE_TRANSLATION:
        case ERROR_CANT_RESOLVE_FILENAME:  // a loop of links
            return ErrorNumber::BadFileName;
        default:
            return commonNumber(error);
    }
}

/// The system's own words in the user's language, by FormatMessageA, without the line end.
std::string systemText(DWORD error) {
    std::array<char, 512> buffer{};
    const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                        error, 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
    std::string text(buffer.data(), length);
    text.resize(text.find_last_not_of(" .\r\n") + 1);
    return text.empty() ? "error " + std::to_string(error) : text;
}

std::string detail(DWORD error, const std::string& path) {
    return path + " (" + systemText(error) + ")";
}

}  // namespace

RunTimeError win32Error(std::uint32_t error, const std::string& path) {
    return RunTimeError(pathNumber(error, path), detail(error, path));
}

RunTimeError win32OpenFileError(std::uint32_t error, const std::string& path) {
    return RunTimeError(commonNumber(error), detail(error, path));
}

}  // namespace velmora
