// Writing to a stream of the caller's without waiting for its reader.
#pragma once

#include <cstdio>

#include "apps/line_output.h"

namespace velmora {

/// What ends a line in the streams of this system.
extern const char* const kStreamLineEnd;

/// Writes to a stream's own descriptor, which must stay open, past what the stream itself may hold back. A
/// pipe or terminal whose reader has stopped takes nothing, nor does a file on a full disk. One whose reader
/// has gone takes everything, as does one that fails otherwise: there is nobody to tell. The stream behaves
/// as before for others who have it, but for a pipe on Windows, where a program usually has the end that it
/// writes to for itself.
LineOutput::Write nonBlockingOutput(std::FILE* stream);

}  // namespace velmora
