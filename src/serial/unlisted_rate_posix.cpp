// These calls have a settings structure of their own, whose header does not go together with <termios.h>.
#include "serial/unlisted_rate.h"

#ifdef __linux__
#include <asm/termbits.h>
#include <sys/ioctl.h>
#endif

namespace velmora {

#ifdef __linux__

namespace {

/// A receiver looks at the middle of each bit; over the ten bits of a byte it may be half a bit off, and so
/// may the sender be the other way.
constexpr std::uint32_t kTakenWithin = 50;  // one part in so many

}  // namespace

bool setUnlistedRate(int descriptor, std::uint32_t baud) {
    termios2 block{};
    if (ioctl(descriptor, TCGETS2, &block) < 0) {
        return false;
    }
    block.c_cflag &= ~static_cast<tcflag_t>(CBAUD | CIBAUD);
    block.c_cflag |= static_cast<tcflag_t>(BOTHER) | (static_cast<tcflag_t>(BOTHER) << IBSHIFT);
    block.c_ispeed = baud;
    block.c_ospeed = baud;
    if (ioctl(descriptor, TCSETS2, &block) < 0 || ioctl(descriptor, TCGETS2, &block) < 0) {
        return false;
    }
    const std::uint32_t taken = block.c_ospeed;
    return (taken > baud ? taken - baud : baud - taken) <= baud / kTakenWithin;
}

std::optional<std::uint32_t> unlistedRate(int descriptor) {
    termios2 block{};
    if (ioctl(descriptor, TCGETS2, &block) < 0 || (block.c_cflag & CBAUD) != BOTHER) {
        return std::nullopt;
    }
    return block.c_ospeed;
}

#else

bool setUnlistedRate(int /*descriptor*/, std::uint32_t /*baud*/) {
    return false;
}

std::optional<std::uint32_t> unlistedRate(int /*descriptor*/) {
    return std::nullopt;
}

#endif

}  // namespace velmora
