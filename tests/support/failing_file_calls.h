// Lets calls about files fail by FailingCall. This header defines functions of the C library anew, so that
// exactly one source file of a test program may include it.
#pragma once

#include <dirent.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/failing_call.h"
#include "support/failing_open.h"

extern "C" {

int fstat(int descriptor, struct stat* status) noexcept {
    return velmora::test::callOrFail("fstat", &fstat, descriptor, status);
}
int flock(int descriptor, int operation) noexcept {
    return velmora::test::callOrFail("flock", &flock, descriptor, operation);
}
int ftruncate(int descriptor, off_t size) noexcept {
    return velmora::test::callOrFail("ftruncate", &ftruncate, descriptor, size);
}
ssize_t pread(int descriptor, void* buffer, size_t count, off_t position) {
    return velmora::test::callOrFail("pread", &pread, descriptor, buffer, count, position);
}
ssize_t pwrite(int descriptor, const void* buffer, size_t count, off_t position) {
    return velmora::test::callOrFail("pwrite", &pwrite, descriptor, buffer, count, position);
}
/// A descriptor is gone whatever the call answers.
int close(int descriptor) {
    const std::optional<int> error = velmora::test::FailingCall::reason("close");
    const int result = velmora::test::original("close", &close)(descriptor);
    errno = error.value_or(errno);
    return error ? -1 : result;
}
int chmod(const char* path, mode_t mode) noexcept {
    return velmora::test::callOrFail("chmod", &chmod, path, mode);
}
int fchmod(int descriptor, mode_t mode) noexcept {
    return velmora::test::callOrFail("fchmod", &fchmod, descriptor, mode);
}
int chown(const char* path, uid_t owner, gid_t group) noexcept {
    return velmora::test::callOrFail("chown", &chown, path, owner, group);
}
int unlink(const char* path) noexcept {
    return velmora::test::callOrFail("unlink", &unlink, path);
}

dirent* readdir(DIR* folder) {
    if (const std::optional<int> error = velmora::test::FailingCall::reason("readdir")) {
        errno = *error;
        return nullptr;
    }
    return velmora::test::original("readdir", &readdir)(folder);
}

}  // extern "C"
