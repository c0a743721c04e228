// Standard streams that carry bytes.
#pragma once

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#endif

namespace velmora {

/// Lets the standard streams pass bytes as they are: on Windows they begin in text mode, which changes line
/// ends and takes byte 26 for the end. To be called before the first use of any; nothing to do on other
/// systems.
inline void useBinaryStandardStreams() {
#ifdef _WIN32
    for (std::FILE* const stream : {stdin, stdout, stderr}) {
        _setmode(_fileno(stream), _O_BINARY);
    }
#endif
}

}  // namespace velmora
