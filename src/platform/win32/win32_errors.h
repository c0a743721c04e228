// The one place where Win32's error numbers become run-time errors.
#pragma once

#include <cstdint>
#include <string>

#include "base/run_time_error.h"

namespace velmora {

/// What a number of GetLastError means for an operation that named a path. For
/// ERROR_FILE_NOT_FOUND the disk is asked whether the file is missing (53) or a folder on the way to it (76).
RunTimeError win32Error(std::uint32_t error, const std::string& path);

/// What it means for an operation on an open file; `path` is the one that it was opened by, for the text.
RunTimeError win32OpenFileError(std::uint32_t error, const std::string& path);

}  // namespace velmora
