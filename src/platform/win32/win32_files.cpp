#include "platform/win32/win32_files.h"

#include <windows.h>

#include <optional>
#include <random>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "base/temporary_name.h"
#include "platform/win32/win32_errors.h"
#include "platform/win32/win32_file.h"
#include "platform/win32/win32_folder.h"
#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_links.h"
#include "platform/windows_paths.h"

namespace velmora {
namespace {

/// The status of an existing file; throws when there is none or something else has its name.
Win32Status requireFile(const std::string& path) {
    Win32Status status;
    if (const std::uint32_t error = readWin32Status(path, status); error != ERROR_SUCCESS) {
        throw win32Error(error, path);
    }
    if (status.isFolder) {
        throw RunTimeError(ErrorNumber::PathFileAccess, path);
    }
    return status;
}

/// What a path leads to; nothing when that cannot be found out for any reason.
std::optional<Win32Status> statusOf(const std::string& path) {
    Win32Status status;
    return readWin32Status(path, status) == ERROR_SUCCESS ? std::optional(status) : std::nullopt;
}

std::optional<Win32Status> foundStatus(const Win32Lookup& lookup, const std::string& path) {
    try {
        return statusOf(lookup.lookUp(path));
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

DWORD disposition(OpenMode mode) {
    switch (mode) {
        case OpenMode::Create:
            return OPEN_ALWAYS;  // emptied only once it is ours; CREATE_ALWAYS refuses hidden files
        case OpenMode::CreateNew:
            return CREATE_NEW;
        case OpenMode::Read:
        case OpenMode::ReadWrite:
            break;
    }
    return OPEN_EXISTING;
}

/// Opens a file. Others may look on, but neither write nor delete it; one that another program is writing
/// already, and shares, is read beside it. INVALID_HANDLE_VALUE and GetLastError as CreateFileA.
HANDLE openShared(const std::string& path, DWORD access, OpenMode mode) {
    const auto attempt = [&](DWORD share) {
        return CreateFileA(path.c_str(), access, share, nullptr, disposition(mode), FILE_ATTRIBUTE_NORMAL,
                           nullptr);
    };
    const HANDLE file = attempt(FILE_SHARE_READ);
    const bool isWrittenByOthers =
        mode == OpenMode::Read && file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION;
    return isWrittenByOthers ? attempt(FILE_SHARE_READ | FILE_SHARE_WRITE) : file;
}

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Hands the bytes to the disk before the name changes hands, so that a power failure leaves one whole file.
/// Answers 0 or the number of GetLastError.
DWORD flushToDisk(const std::string& path) {
    const Win32Handle file(
        CreateFileA(path.c_str(), GENERIC_WRITE, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    return file.isValid() && FlushFileBuffers(file.get()) != 0 ? ERROR_SUCCESS : GetLastError();
}

/// Takes a step, which answers 0 or the number of GetLastError, again while the answer may be that another
/// program holds the file. Gives up after half a second.
DWORD patiently(const Win32Files::Wait& wait, const std::function<DWORD()>& step) {
    constexpr int kAttempts = 26;
    constexpr std::chrono::milliseconds kPause(20);
    DWORD error = step();
    for (int i = 1; i < kAttempts && (error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED);
         ++i) {
        wait(kPause);
        error = step();
    }
    return error;
}

/// Why a file could not be replaced: the answer is "access denied" also when another program holds it.
DWORD replaceError(const std::string& target, DWORD error) {
    if (error == ERROR_ACCESS_DENIED) {
        const Win32Handle probe(
            CreateFileA(target.c_str(), DELETE, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
        if (!probe.isValid() && GetLastError() == ERROR_SHARING_VIOLATION) {
            return ERROR_SHARING_VIOLATION;
        }
    }
    return error;
}

/// A folder's path as readWin32Folder takes it.
std::string withSeparator(const std::string& folder) {
    const char last = folder.back();
    return last == '\\' || last == '/' || last == ':' ? folder : folder + "\\";
}

}  // namespace

Win32Files::Win32Files(std::string temporaryFolder, Wait wait)
    : temporaryFolder_(std::move(temporaryFolder)), wait_(std::move(wait)) {
    if (!wait_) {
        wait_ = [](std::chrono::milliseconds time) { Sleep(static_cast<DWORD>(time.count())); };
    }
    SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS);
}

bool Win32Files::fileExists(const std::string& path) const {
    const std::optional<Win32Status> status = foundStatus(lookup_, path);
    return status && !status->isFolder;
}

bool Win32Files::folderExists(const std::string& path) const {
    const std::optional<Win32Status> status = foundStatus(lookup_, path);
    return status && status->isFolder;
}

std::uint64_t Win32Files::fileSize(const std::string& path) const {
    return requireFile(lookup_.lookUp(path)).size;
}

std::string Win32Files::storedPath(const std::string& path) const {
    try {
        const std::string found = lookup_.lookUp(path);
        const std::optional<Win32Status> status = statusOf(found);
        return status && !status->isFolder ? withStoredLetters(found) : path;
    } catch (const RunTimeError&) {
        return path;
    }
}

std::string Win32Files::pathOfShortName(const std::string& path) const {
    try {
        return lookup_.pathOfShortName(path);
    } catch (const RunTimeError&) {
        return path;
    }
}

std::optional<std::string> Win32Files::resolvedPath(const std::string& path) const {
    try {
        return resolvedWin32Path(lookup_.lookUp(path));
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::unique_ptr<File> Win32Files::open(const std::string& path, OpenMode mode) {
    const std::string found = lookup_.lookUp(path);
    const std::optional<Win32Status> status = statusOf(found);
    if (status && mode == OpenMode::CreateNew) {
        throw RunTimeError(ErrorNumber::FileAlreadyExists, found);
    }
    if (status && status->isFolder) {
        throw RunTimeError(ErrorNumber::PathFileAccess, found);
    }
    const bool writable = mode != OpenMode::Read;
    const DWORD access = GENERIC_READ | (writable ? GENERIC_WRITE : 0);
    Win32Handle file(openShared(found, access, mode));
    if (!file.isValid()) {
        throw win32Error(GetLastError(), found);
    }
    if (GetFileType(file.get()) != FILE_TYPE_DISK) {
        throw RunTimeError(ErrorNumber::PathFileAccess, found);
    }
    // A new handle is at the start of its file.
    if (mode == OpenMode::Create && SetEndOfFile(file.get()) == 0) {
        throw win32OpenFileError(GetLastError(), found);
    }
    return std::make_unique<Win32File>(file.handOn(), writable, found);
}

void Win32Files::deleteFile(const std::string& path) {
    const std::string found = lookup_.lookUp(path);
    requireFile(found);
    if (DeleteFileA(found.c_str()) == 0) {
        throw win32Error(GetLastError(), found);
    }
}

void Win32Files::createFolder(const std::string& path, FolderRights /*rights*/) {
    const std::string found = lookup_.lookUp(path);
    const std::size_t root = WindowsPaths({}).drive(found).size();
    for (std::size_t end = found.find_first_of("\\/", root + 1);; end = found.find_first_of("\\/", end + 1)) {
        const std::string folder = found.substr(0, end);
        if (CreateDirectoryA(folder.c_str(), nullptr) == 0) {
            const DWORD error = GetLastError();
            const std::optional<Win32Status> status = statusOf(folder);
            if (!status) {
                throw win32Error(error, folder);
            }
            if (!status->isFolder) {
                throw RunTimeError(ErrorNumber::PathFileAccess, folder);
            }
        }
        if (end == std::string::npos) {
            return;
        }
    }
}

std::string Win32Files::followLinks(const std::string& path) const {
    return pathBehindWin32Links(lookup_.lookUp(path));
}

void Win32Files::replaceFile(const std::string& from, const std::string& to) {
    const std::string source = lookup_.lookUp(from);
    std::string target = followLinks(to);
    requireFile(source);
    if (const std::optional<Win32Status> old = statusOf(target)) {
        if (old->isFolder) {
            throw RunTimeError(ErrorNumber::PathFileAccess, target);
        }
        target = withStoredLetters(target);  // the letters of the new name count otherwise
    }
    if (const DWORD error = patiently(wait_, [&] { return flushToDisk(source); }); error != ERROR_SUCCESS) {
        throw win32Error(error, source);
    }
    const DWORD error = patiently(wait_, [&]() -> DWORD {
        const bool moved = MoveFileExA(source.c_str(), target.c_str(),
                                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
        return moved ? ERROR_SUCCESS : GetLastError();
    });
    if (error != ERROR_SUCCESS) {
        throw win32Error(replaceError(target, error), target);
    }
}

std::string Win32Files::createTemporaryFile(const std::string& folder) {
    const std::string place = lookup_.lookUp(folder.empty() ? temporaryFolder_ : folder);
    std::random_device random;
    while (true) {
        std::string path = withSeparator(place) + temporaryName(random());
        const Win32Handle file(
            CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (file.isValid()) {
            return path;
        }
        if (GetLastError() != ERROR_FILE_EXISTS) {
            throw win32Error(GetLastError(), path);
        }
    }
}

void Win32Files::removeLeftovers(const std::string& folder) {
    try {
        const std::string place = withSeparator(lookup_.lookUp(folder));
        for (const Win32Entry& entry : readWin32Folder(place)) {
            if (entry.isFile && isTemporaryName(entry.name)) {
                DeleteFileA((place + entry.name).c_str());  // refused while a program has it open
            }
        }
    } catch (const RunTimeError&) {
        // A folder that cannot be read is told by whoever needs it.
    }
}

void Win32Files::listFiles(const std::string& folder, ShortNames shortNames,
                           const std::function<void(const FolderEntry&)>& visit) const {
    const std::string found = withSeparator(lookup_.lookUp(folder));
    const std::vector<Win32Entry> entries = readWin32Folder(found);
    std::vector<std::string> shorts(entries.size());
    if (shortNames == ShortNames::Include) {
        shorts = lookup_.shortNames(found, entries);
    }
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].isFile && !isTemporaryName(entries[i].name)) {
            visit({entries[i].name, shorts[i]});
        }
    }
}

}  // namespace velmora
