// Lets calls about terminals fail by FailingCall. This header defines functions of the C library anew, so
// that exactly one source file of a test program may include it.
#pragma once

#include <termios.h>
#include <unistd.h>

#include "support/asked_settings.h"
#include "support/failing_call.h"
#include "support/failing_open.h"

extern "C" {

ssize_t read(int descriptor, void* buffer, size_t count) {
    return velmora::test::callOrFail("read", &read, descriptor, buffer, count);
}
ssize_t write(int descriptor, const void* buffer, size_t count) {
    return velmora::test::callOrFail("write", &write, descriptor, buffer, count);
}
int tcgetattr(int descriptor, termios* settings) noexcept {
    return velmora::test::callOrFail("tcgetattr", &tcgetattr, descriptor, settings);
}
int tcsetattr(int descriptor, int when, const termios* settings) noexcept {
    velmora::test::askedSettings() = *settings;
    return velmora::test::callOrFail("tcsetattr", &tcsetattr, descriptor, when, settings);
}

}  // extern "C"
