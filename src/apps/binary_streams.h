// Standard input and output that carry bytes.
#pragma once

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#endif

namespace velmora {

/// Makes the standard streams carry bytes as they are. The Windows run-time library (_setmode) would end the
/// input at a byte 26 and put a carriage return before each line feed of the output; elsewhere there is
/// nothing to do. Call it before the first byte goes either way.
inline void makeStandardStreamsBinary() {
#ifdef _WIN32
    for (std::FILE* const stream : {stdin, stdout, stderr}) {
        ::_setmode(::_fileno(stream), _O_BINARY);
    }
#endif
}

}  // namespace velmora
