// What a driver was asked for last, of which a pseudo-terminal takes no parity and no number of bits.
#pragma once

#include <termios.h>

namespace velmora::test {

/// The settings of the last tcsetattr(). All tests share the one object.
inline termios& askedSettings() {
    static termios settings{};
    return settings;
}

}  // namespace velmora::test
