// Handing what was written to the disk, so that a power failure does not take it.
#pragma once

#include <string>

namespace velmora {

/// Hands the bytes of an open file to the disk. `path` is for the text of the error. A file system that keeps
/// nothing back is fine; any other failure is a RunTimeError.
void flushFile(int descriptor, const std::string& path);

/// Hands the entry of a path to the disk: that its file was made or renamed. A folder that cannot be opened
/// for it is left to the system; a failure of the disk is a RunTimeError.
void flushEntry(const std::string& path);

}  // namespace velmora
