// Line settings in the terminal settings of POSIX.
#pragma once

#include <termios.h>

#include "serial/mode_string.h"

namespace velmora {

/// Makes the block one for raw bytes with these settings. False when the rate has no place there: then it
/// keeps the one that it has.
bool applyLineSettings(termios& block, const LineSettings& line);

/// The line settings of a block; a rate without a place there is 0.
LineSettings lineSettingsOf(const termios& block);

}  // namespace velmora
