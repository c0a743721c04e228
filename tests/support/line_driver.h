// The driver of a serial adapter behind a pseudo-terminal, which has no modem lines, counts no errors and
// takes bytes at once. poll() fails by FailingCall. This header defines functions of the C library anew, so
// that exactly one source file of a test program may include it.
#pragma once

#include <linux/serial.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdarg>
#include <deque>
#include <map>

#include "support/failing_call.h"

namespace velmora::test {

/// What the driver answers while it is `present`, and what it was asked for. All tests share the one object;
/// begin and end with a new one.
struct LineDriver {
    bool present = false;
    int lines = 0;  ///< bits TIOCM_…
    bool breaking = false;
    serial_icounter_struct errors{};
    std::deque<int> unsent;               ///< answers about bytes that are still to leave; the last one stays
    std::chrono::milliseconds waited{0};  ///< for nothing but time, which passes at once
    std::map<unsigned long, int> refused;  ///< requests by the errno of their failure; 0: nothing is done
    int dropped = 0;                       ///< how often bytes that were still to leave were dropped

    int takeUnsent() {
        const int count = unsent.empty() ? 0 : unsent.front();
        if (unsent.size() > 1) {
            unsent.pop_front();
        }
        return count;
    }
    /// Whether it answered the request itself, without a failure.
    bool answers(unsigned long request, void* argument) {
        switch (request) {
            case TIOCMGET:
                *static_cast<int*>(argument) = lines;
                return true;
            case TIOCMBIS:
                lines |= *static_cast<int*>(argument);
                return true;
            case TIOCMBIC:
                lines &= ~*static_cast<int*>(argument);
                return true;
            case TIOCSBRK:
            case TIOCCBRK:
                breaking = request == TIOCSBRK;
                return true;
            case TIOCGICOUNT:
                *static_cast<serial_icounter_struct*>(argument) = errors;
                return true;
            case TIOCOUTQ:
                *static_cast<int*>(argument) = takeUnsent();
                return true;
            default:
                return false;
        }
    }
};

inline LineDriver& lineDriver() {
    static LineDriver driver;
    return driver;
}

}  // namespace velmora::test

extern "C" int ioctl(int descriptor, unsigned long request, ...) noexcept {
    std::va_list arguments;
    va_start(arguments, request);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    velmora::test::LineDriver& driver = velmora::test::lineDriver();
    if (driver.present && driver.refused.contains(request)) {
        errno = driver.refused[request];
        return errno == 0 ? 0 : -1;
    }
    if (driver.present && driver.answers(request, argument)) {
        return 0;
    }
    return static_cast<int>(syscall(SYS_ioctl, descriptor, request, argument));
}

extern "C" int poll(pollfd* watched, nfds_t count, int timeout) {
    velmora::test::LineDriver& driver = velmora::test::lineDriver();
    if (driver.present && count == 0) {
        driver.waited += std::chrono::milliseconds(timeout);
        return 0;
    }
    if (const std::optional<int> error = velmora::test::FailingCall::reason("poll")) {
        errno = *error;
        return -1;
    }
    const timespec limit{timeout / 1000, timeout % 1000 * 1'000'000L};
    return ppoll(watched, count, timeout < 0 ? nullptr : &limit, nullptr);
}

extern "C" int tcflush(int descriptor, int queue) noexcept {
    velmora::test::LineDriver& driver = velmora::test::lineDriver();
    driver.dropped += queue == TCOFLUSH ? 1 : 0;
    return static_cast<int>(syscall(SYS_ioctl, descriptor, TCFLSH, queue));
}
