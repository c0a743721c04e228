#include "platform/posix/posix_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <limits>
#include <utility>

#include "platform/posix/disk_flush.h"
#include "platform/posix/system_errors.h"

namespace velmora {
namespace {

constexpr auto kLastPosition = static_cast<std::uint64_t>(std::numeric_limits<off_t>::max());

/// Cuts a file back after a failed write; the write's own failure is the one to report.
void cutBack(int descriptor, std::uint64_t size) {
    while (ftruncate(descriptor, static_cast<off_t>(size)) != 0 && errno == EINTR) {
    }
}

}  // namespace

PosixFile::PosixFile(int descriptor, bool writable, std::string path)
    : descriptor_(descriptor), writable_(writable), path_(std::move(path)) {}

PosixFile::~PosixFile() {
    if (descriptor_ != -1) {
        ::close(descriptor_);
    }
}

std::size_t PosixFile::read(char* buffer, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        const ssize_t taken =
            pread(descriptor_, buffer + done, count - done, static_cast<off_t>(position_ + done));
        if (taken < 0 && errno != EINTR) {
            throw openFileError(errno, path_);
        }
        if (taken == 0) {
            break;
        }
        done += taken > 0 ? static_cast<std::size_t>(taken) : 0;
    }
    position_ += done;
    return done;
}

void PosixFile::write(std::string_view bytes) {
    if (!writable_ && descriptor_ != -1) {
        throw RunTimeError(ErrorNumber::PathFileAccess, path_);
    }
    const std::uint64_t oldSize = size();
    if (bytes.size() > kLastPosition - position_) {
        throw openFileError(EFBIG, path_);
    }
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t written = pwrite(descriptor_, bytes.data() + done, bytes.size() - done,
                                       static_cast<off_t>(position_ + done));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            // A file system that takes nothing now would be asked for ever.
            const int error = written < 0 ? errno : ENOSPC;
            if (position_ + done > oldSize) {
                cutBack(descriptor_, oldSize);
            }
            throw openFileError(error, path_);
        }
        done += static_cast<std::size_t>(written);
    }
    position_ += done;
}

void PosixFile::seek(std::uint64_t position) {
    if (position > kLastPosition) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, path_);
    }
    position_ = position;
}

std::uint64_t PosixFile::size() const {
    struct stat status {};
    if (fstat(descriptor_, &status) != 0) {
        throw openFileError(errno, path_);
    }
    return static_cast<std::uint64_t>(status.st_size);
}

void PosixFile::flush() {
    flushFile(descriptor_, path_);
    flushEntry(path_);
}

bool PosixFile::isInPlace() const {
    struct stat open {};
    struct stat named {};
    return fstat(descriptor_, &open) == 0 && stat(path_.c_str(), &named) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

void PosixFile::close() {
    if (descriptor_ == -1) {
        return;
    }
    // After EINTR the descriptor is gone on Linux: a second try could close somebody else's.
    const int result = ::close(std::exchange(descriptor_, -1));
    if (result != 0 && errno != EINTR) {
        throw openFileError(errno, path_);
    }
}

}  // namespace velmora
