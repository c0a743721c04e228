// The limit that an administrator may set to the size of a program's files (RLIMIT_FSIZE).
#pragma once

#include <csignal>

namespace velmora {

/// From here on a write beyond the limit fails as on a full disk, instead of ending the program in the middle
/// of a record. Without effect on systems that know no such limit.
inline void outliveFileSizeLimit() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace velmora
