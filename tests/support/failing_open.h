// Lets open() fail by FailingCall. This header defines it anew, so that exactly one source file of a test
// program may include it.
#pragma once

#include <fcntl.h>

#include <cstdarg>

#include "support/failing_call.h"

extern "C" int open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return velmora::test::callOrFail("open", &open, path, flags, mode);
}
