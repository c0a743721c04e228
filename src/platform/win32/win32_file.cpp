#include "platform/win32/win32_file.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/win32/win32_errors.h"

namespace velmora {
namespace {

constexpr auto kLastPosition = static_cast<std::uint64_t>(std::numeric_limits<LONGLONG>::max());
/// What one call of ReadFile or WriteFile moves; some network drives refuse much more.
constexpr std::size_t kMostAtOnce = std::size_t{16} * 1024 * 1024;

/// The position of one read or write, which needs no file pointer then.
OVERLAPPED at(std::uint64_t position) {
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(position & 0xFFFFFFFFU);
    place.OffsetHigh = static_cast<DWORD>(position >> 32);
    return place;
}

DWORD piece(std::size_t left) {
    return static_cast<DWORD>(std::min(left, kMostAtOnce));
}

/// Cuts a file back after a failed write; the write's own failure is the one to report.
void cutBack(HANDLE handle, std::uint64_t size) {
    LARGE_INTEGER end{};
    end.QuadPart = static_cast<LONGLONG>(size);
    if (SetFilePointerEx(handle, end, nullptr, FILE_BEGIN) != 0) {
        SetEndOfFile(handle);
    }
}

/// Hands what was written to the disk. Answers 0 or the number of GetLastError; a file system that keeps
/// nothing back is fine.
DWORD flushError(HANDLE handle) {
    const DWORD error = FlushFileBuffers(handle) != 0 ? ERROR_SUCCESS : GetLastError();
    return error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED ? ERROR_SUCCESS : error;
}

}  // namespace

Win32File::Win32File(HANDLE handle, bool writable, std::string path)
    : handle_(handle), writable_(writable), path_(std::move(path)) {}

Win32File::~Win32File() {
    if (handle_ != INVALID_HANDLE_VALUE) {
        CloseHandle(handle_);
    }
}

std::size_t Win32File::read(char* buffer, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        OVERLAPPED place = at(position_ + done);
        DWORD taken = 0;
        if (ReadFile(handle_, buffer + done, piece(count - done), &taken, &place) == 0) {
            const DWORD error = GetLastError();
            if (error == ERROR_HANDLE_EOF) {
                break;
            }
            throw win32OpenFileError(error, path_);
        }
        if (taken == 0) {
            break;
        }
        done += taken;
    }
    position_ += done;
    return done;
}

void Win32File::write(std::string_view bytes) {
    if (!writable_ && handle_ != INVALID_HANDLE_VALUE) {
        throw RunTimeError(ErrorNumber::PathFileAccess, path_);
    }
    const std::uint64_t oldSize = size();
    if (bytes.size() > kLastPosition - position_) {
        throw win32OpenFileError(ERROR_FILE_TOO_LARGE, path_);
    }
    std::size_t done = 0;
    while (done < bytes.size()) {
        OVERLAPPED place = at(position_ + done);
        DWORD written = 0;
        const BOOL good =
            WriteFile(handle_, bytes.data() + done, piece(bytes.size() - done), &written, &place);
        if (good == 0 || written == 0) {
            const DWORD error = good == 0 ? GetLastError() : ERROR_DISK_FULL;
            if (position_ + bytes.size() > oldSize) {
                cutBack(handle_, oldSize);
            }
            throw win32OpenFileError(error, path_);
        }
        written_ = true;
        done += written;
    }
    position_ += done;
}

void Win32File::seek(std::uint64_t position) {
    if (position > kLastPosition) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, path_);
    }
    position_ = position;
}

std::uint64_t Win32File::size() const {
    LARGE_INTEGER size{};
    if (GetFileSizeEx(handle_, &size) == 0) {
        throw win32OpenFileError(GetLastError(), path_);
    }
    return static_cast<std::uint64_t>(size.QuadPart);
}

void Win32File::flush() {
    if (const DWORD error = flushError(handle_); error != ERROR_SUCCESS) {
        throw win32OpenFileError(error, path_);
    }
    written_ = false;
}

void Win32File::close() {
    if (handle_ == INVALID_HANDLE_VALUE) {
        return;
    }
    const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
    DWORD error = written_ ? flushError(handle) : ERROR_SUCCESS;
    if (CloseHandle(handle) == 0 && error == ERROR_SUCCESS) {
        error = GetLastError();
    }
    if (error != ERROR_SUCCESS) {
        throw win32OpenFileError(error, path_);
    }
}

}  // namespace velmora
