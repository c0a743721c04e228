#include "platform/posix/posix_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <tuple>
#include <utility>
#include <vector>

#include "base/run_time_error.h"
#include "base/temporary_name.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/disk_flush.h"
#include "platform/posix/folder_entries.h"
#include "platform/posix/posix_file.h"
#include "platform/posix/resolved_path.h"
#include "platform/posix/system_errors.h"

namespace velmora {
namespace {

/// Type and rights of what a path leads to; nothing when it leads nowhere.
std::optional<struct stat> statusOf(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return status;
}

/// The status of an existing file; throws when there is none or something else has its name.
struct stat requireFile(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        throw systemError(errno, path);
    }
    if (!S_ISREG(status.st_mode)) {
        throw RunTimeError(ErrorNumber::PathFileAccess, path);
    }
    return status;
}

int openFlags(OpenMode mode) {
    // O_NONBLOCK matters only if a pipe takes the file's place after the check: open() must not wait then.
    constexpr int kAlways = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    switch (mode) {
        case OpenMode::Read:
            return kAlways | O_RDONLY;
        case OpenMode::ReadWrite:
            return kAlways | O_RDWR;
        case OpenMode::Create:
            return kAlways | O_RDWR | O_CREAT;  // emptied only once it is locked
        case OpenMode::CreateNew:
            return kAlways | O_RDWR | O_CREAT | O_EXCL;
    }
    return kAlways;
}

/// Throws 70 when another program holds the file; a file system without locks is fine.
void lock(int descriptor, bool writable, const std::string& path) {
    const int kind = writable ? LOCK_EX : LOCK_SH;
    if (withoutInterruption([&] { return flock(descriptor, kind | LOCK_NB); }) != 0 && errno == EWOULDBLOCK) {
        throw openFileError(errno, path);
    }
}

/// Hands the bytes to the disk before the name changes hands, so that a power failure leaves one whole file;
/// locked meanwhile, so that no other program that starts takes it for a leftover.
void flushAndRename(const std::string& from, const std::string& to) {
    const Descriptor file(withoutInterruption([&] { return ::open(from.c_str(), O_RDONLY | O_CLOEXEC); }));
    if (file.number() == -1) {
        throw systemError(errno, from);
    }
    // Refused where the caller holds it, which keeps the others off as well.
    std::ignore = flock(file.number(), LOCK_SH | LOCK_NB);
    flushFile(file.number(), from);
    if (rename(from.c_str(), to.c_str()) != 0) {
        throw systemError(errno, to);
    }
}

/// Whether the error of a change of rights says that the file system keeps none, as FAT and some that are
/// mounted over a network: its owner may change them anywhere else.
bool keepsNoRights(int error) {
    return error == EPERM || error == EOPNOTSUPP || error == ENOSYS;
}

/// Gives a new file the rights of the one that it replaces and, where the system lets it, owner and group.
void takeOver(const std::string& path, const struct stat& fresh, const struct stat& old) {
    constexpr auto kSameOwner = static_cast<uid_t>(-1);
    // Where a file system keeps no rights all files have the same, and it refuses to set any.
    if (fresh.st_mode != old.st_mode && chmod(path.c_str(), old.st_mode & 07777) != 0) {
        throw systemError(errno, path);
    }
    if (chown(path.c_str(), old.st_uid, old.st_gid) != 0) {
        std::ignore = chown(path.c_str(), kSameOwner, old.st_gid);
    }
}

/// Whether no program has a file open for writing, as far as programs lock what they write.
bool isFree(const std::string& path) {
    const Descriptor file(withoutInterruption(
        [&] { return ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC); }));
    return file.number() != -1 && flock(file.number(), LOCK_EX | LOCK_NB) == 0;
}

/// What a path leads to, found without regard to case; nothing when it cannot be found for any reason.
std::optional<struct stat> foundStatus(const PathLookup& lookup, const std::string& path) {
    try {
        return statusOf(lookup.lookUp(path).path);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

}  // namespace

PosixFiles::PosixFiles(std::string temporaryFolder) : temporaryFolder_(std::move(temporaryFolder)) {}

bool PosixFiles::fileExists(const std::string& path) const {
    const std::optional<struct stat> status = foundStatus(lookup_, path);
    return status && S_ISREG(status->st_mode);
}

bool PosixFiles::folderExists(const std::string& path) const {
    const std::optional<struct stat> status = foundStatus(lookup_, path);
    return status && S_ISDIR(status->st_mode);
}

std::uint64_t PosixFiles::fileSize(const std::string& path) const {
    return static_cast<std::uint64_t>(requireFile(lookup_.lookUp(path).path).st_size);
}

std::string PosixFiles::storedPath(const std::string& path) const {
    try {
        const std::string found = lookup_.lookUp(path).path;
        const std::optional<struct stat> status = statusOf(found);
        if (!status || !S_ISREG(status->st_mode)) {
            return path;
        }
        // On a file system that ignores case itself the path was found as it was written; ask the folder.
        const std::size_t nameStart = found.rfind('/') + 1;
        const std::string folder = found.substr(0, nameStart);
        return folder + lookup_.findEntry(folder, found.substr(nameStart)).value_or(found.substr(nameStart));
    } catch (const RunTimeError&) {
        return path;
    }
}

std::string PosixFiles::pathOfShortName(const std::string& path) const {
    try {
        return lookup_.pathOfShortName(path);
    } catch (const RunTimeError&) {
        return path;
    }
}

std::optional<std::string> PosixFiles::resolvedPath(const std::string& path) const {
    try {
        return resolvedPosixPath(lookup_.lookUp(path).path);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::unique_ptr<File> PosixFiles::open(const std::string& path, OpenMode mode) {
    const FoundPath found = lookup_.lookUp(path);
    if (found.exists && mode == OpenMode::CreateNew) {
        throw RunTimeError(ErrorNumber::FileAlreadyExists, found.path);
    }
    const std::optional<struct stat> status = statusOf(found.path);
    if (status && !S_ISREG(status->st_mode)) {
        throw RunTimeError(ErrorNumber::PathFileAccess, found.path);
    }
    Descriptor file(
        withoutInterruption([&] { return ::open(found.path.c_str(), openFlags(mode), mode_t{0666}); }));
    struct stat opened {};
    if (file.number() == -1 || fstat(file.number(), &opened) != 0) {
        throw systemError(errno, found.path);
    }
    if (!S_ISREG(opened.st_mode)) {
        throw RunTimeError(ErrorNumber::PathFileAccess, found.path);
    }
    const bool writable = mode != OpenMode::Read;
    lock(file.number(), writable, found.path);
    if (mode == OpenMode::Create && opened.st_size != 0 &&
        withoutInterruption([&] { return ftruncate(file.number(), 0); }) != 0) {
        throw openFileError(errno, found.path);
    }
    return std::make_unique<PosixFile>(file.handOn(), writable, found.path);
}

void PosixFiles::deleteFile(const std::string& path) {
    const std::string found = lookup_.lookUp(path).path;
    requireFile(found);
    if (unlink(found.c_str()) != 0) {
        throw systemError(errno, found);
    }
}

void PosixFiles::createFolder(const std::string& path, FolderRights rights) {
    const mode_t mode = rights == FolderRights::OwnerOnly ? 0700 : 0777;
    const std::string found = lookup_.lookUp(path).path;
    for (std::size_t end = found.find('/', 1);; end = found.find('/', end + 1)) {
        const std::string folder = found.substr(0, end);
        if (mkdir(folder.c_str(), mode) != 0) {
            const int error = errno;
            const std::optional<struct stat> status = statusOf(folder);
            if (!status) {
                throw systemError(error, folder);
            }
            if (!S_ISDIR(status->st_mode)) {
                throw RunTimeError(ErrorNumber::PathFileAccess, folder);
            }
        }
        if (end == std::string::npos) {
            return;
        }
    }
}

std::string PosixFiles::followLinks(const std::string& path) const {
    return pathBehindLinks(lookup_.lookUp(path).path);
}

void PosixFiles::replaceFile(const std::string& from, const std::string& to) {
    const std::string source = lookup_.lookUp(from).path;
    const std::string target = followLinks(to);
    const struct stat fresh = requireFile(source);
    if (const std::optional<struct stat> old = statusOf(target)) {
        if (!S_ISREG(old->st_mode)) {
            throw RunTimeError(ErrorNumber::PathFileAccess, target);
        }
        takeOver(source, fresh, *old);
    }
    flushAndRename(source, target);
    flushEntry(target);
}

std::string PosixFiles::createTemporaryFile(const std::string& folder) {
    const std::string place = lookup_.lookUp(folder.empty() ? temporaryFolder_ : folder).path;
    std::string path = (place.back() == '/' ? place : place + "/") + std::string(kTemporaryPrefix) +
                       std::string(kTemporaryLetters, 'X') + std::string(kTemporarySuffix);
    constexpr int kSuffixLength = kTemporarySuffix.size();
    const Descriptor file(
        withoutInterruption([&] { return mkostemps(path.data(), kSuffixLength, O_CLOEXEC); }));
    if (file.number() == -1) {
        throw systemError(errno, path);
    }
    if (!folder.empty()) {
        // It is going to be a file of its folder, so it gets the rights that any new file gets there.
        const mode_t mask = umask(0);
        umask(mask);
        if (fchmod(file.number(), 0666 & ~mask) != 0 && !keepsNoRights(errno)) {
            const int error = errno;
            unlink(path.c_str());
            throw systemError(error, path);
        }
    }
    return path;
}

void PosixFiles::removeLeftovers(const std::string& folder) {
    try {
        const std::string place = lookup_.lookUp(folder).path;
        for (const ListedEntry& entry : sortedEntries(place)) {
            const std::string path = place + "/" + entry.name;
            if (entry.isFile && isTemporaryName(entry.name) && isFree(path)) {
                unlink(path.c_str());
            }
        }
    } catch (const RunTimeError&) {
        // A folder that cannot be read is told by whoever needs it.
    }
}

void PosixFiles::listFiles(const std::string& folder, ShortNames shortNames,
                           const std::function<void(const FolderEntry&)>& visit) const {
    const std::string found = lookup_.lookUp(folder).path;
    const std::vector<ListedEntry> entries = sortedEntries(found);
    std::vector<std::string> shorts(entries.size());
    if (shortNames == ShortNames::Include) {
        shorts = lookup_.shortNames(found, namesOf(entries));
    }
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].isFile && !isTemporaryName(entries[i].name)) {
            visit({entries[i].name, shorts[i], entries[i].hasTwin});
        }
    }
}

}  // namespace velmora
