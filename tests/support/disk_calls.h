// What a program asks of the disk, in order. This header defines functions of the C library anew, so that
// exactly one source file of a test program may include it.
#pragma once

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <functional>
#include <string>
#include <vector>

namespace velmora::test {

/// Records the flushes and renames of this process, as "flush PATH" and "rename PATH to PATH", and lets
/// flushes fail on demand. All tests share the one object; begin with a new one.
struct DiskCalls {
    std::vector<std::string> made;
    int flushError = 0;                       ///< errno of flushes that fail, 0 for none
    std::string failingPath;                  ///< what cannot be flushed
    std::function<void()> meanwhile = [] {};  ///< what others do before each flush and rename
};

inline DiskCalls& diskCalls() {
    static DiskCalls calls;
    return calls;
}

}  // namespace velmora::test

extern "C" int fsync(int descriptor) {
    velmora::test::DiskCalls& calls = velmora::test::diskCalls();
    std::array<char, 4096> path{};
    const std::string entry = "/proc/self/fd/" + std::to_string(descriptor);
    if (readlink(entry.c_str(), path.data(), path.size() - 1) > 0) {
        calls.made.push_back(std::string("flush ") + path.data());
    }
    calls.meanwhile();
    if (calls.flushError != 0 && calls.failingPath == path.data()) {
        errno = calls.flushError;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

extern "C" int rename(const char* from, const char* to) noexcept {
    velmora::test::diskCalls().made.push_back("rename " + std::string(from) + " to " + to);
    velmora::test::diskCalls().meanwhile();
    return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
