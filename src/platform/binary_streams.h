// Standard streams that carry bytes.
#pragma once

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#endif

namespace velmora {

/// Lets standard input and output pass bytes as they are: on Windows they begin in text mode, which changes
/// line ends and takes byte 26 for the end. To be called before the first use of either; nothing to do on
/// other systems.
inline void useBinaryStandardStreams() {
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
}

}  // namespace velmora
