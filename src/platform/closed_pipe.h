// Output that nobody reads any more.
#pragma once

#include <csignal>

namespace velmora {

/// From here on a write into a pipe that nobody reads fails, instead of ending the program: whoever read the
/// output may go away, and the Organiser is served all the same. Without effect on systems that end none.
inline void outliveClosedPipes() {
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

}  // namespace velmora
